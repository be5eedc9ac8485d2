#include "app/WindowFixture.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class ContextMenu : public WindowFixture
{
protected:
    ContextMenu()
    {
        Preferences(preferencesPath).setText(u"ordering"_s, u"key"_s);
        serve({u"MOB-1"_s, u"MOB-2"_s, u"MOB-3"_s});
        service->assignCalls.answerWith();
        service->performCalls.answerWith();
        service->updateCalls.answerWith();
        openOnDemo();
        desktop->setPrefersReducedMotion(true);
    }

    void openOn(const QString &key) { rightClick(await(QAccessible::ListItem, key + u',')); }
    void choose(const QString &entry) { click(await(QAccessible::MenuItem, entry)); }
    bool offers(const QString &entry)
    {
        return !spokenIn(window(), QAccessible::MenuItem, entry).isEmpty();
    }
    void serveMany()
    {
        QStringList many;
        for (int i = 1; i <= 100; ++i)
            many += u"MOB-%1"_s.arg(i);
        serve(many);
        reload();
    }
    void scroll(int delta)
    {
        const QPointF place(420, 400);
        QWheelEvent wheel(place, window().mapToGlobal(place), {}, {0, delta}, {}, {}, {}, false);
        QCoreApplication::sendEvent(&window(), &wheel);
    }
    Issue issue(const QString &key) { return *store().issue(key).value_or(SharedIssue()); }
};

TEST_F(ContextMenu, ARightClickOutsideTheCheckedSetActsOnThatRowAlone)
{
    store().setChecked({u"MOB-1"_s, u"MOB-2"_s});
    openOn(u"MOB-3"_s);
    choose(u"Copier la clé"_s);

    EXPECT_EQ(lastCopied(), u"MOB-3"_s);
    EXPECT_EQ(store().checkedCount(), 2);
    EXPECT_EQ(store().inspectorKey(), std::nullopt);
}

TEST_F(ContextMenu, ARightClickInsideTheCheckedSetActsOnTheWholeSet)
{
    store().setChecked({u"MOB-1"_s, u"MOB-2"_s});
    openOn(u"MOB-2"_s);
    choose(u"Assigner"_s);
    choose(u"M'assigner"_s);

    EXPECT_EQ(issue(u"MOB-1"_s).assigneeOrEmpty().name, u"Noam Talvère"_s);
    EXPECT_EQ(issue(u"MOB-2"_s).assigneeOrEmpty().name, u"Noam Talvère"_s);
    EXPECT_FALSE(issue(u"MOB-3"_s).assignee);
}

TEST_F(ContextMenu, OnSeveralRowsTheCopyEntryCountsAndTheEntriesForOneIssueAreMissing)
{
    store().setChecked({u"MOB-1"_s, u"MOB-2"_s, u"MOB-3"_s});
    openOn(u"MOB-2"_s);
    await(QAccessible::MenuItem, u"Copier les 3 clés"_s);

    for (const auto &entry :
         {u"Ouvrir"_s, u"Copier la clé"_s, u"Copier le"_s + u" lien"_s, u"Copier le nom"_s})
        EXPECT_FALSE(offers(entry)) << entry.toStdString();
    choose(u"Copier les 3 clés"_s);
    EXPECT_EQ(lastCopied(), u"MOB-1, MOB-2, MOB-3"_s);
}

TEST_F(ContextMenu, OneIssueOffersAllEntries)
{
    openOn(u"MOB-1"_s);
    await(QAccessible::MenuItem, u"Statut"_s);

    for (const auto &entry : {u"Priorité"_s, u"Assigner"_s, u"Ouvrir dans une nouvelle fenêtre"_s,
                              u"Ouvrir dans Jira"_s, u"Copier la clé"_s, u"Copier le lien"_s,
                              u"Copier le nom de branche git"_s})
        EXPECT_TRUE(offers(entry)) << entry.toStdString();
    EXPECT_FALSE(offers(u"Étiquettes"_s)) << "the list has no labels";
}

TEST_F(ContextMenu, LabelsAreOfferedWhereTheListHasAny)
{
    Issue labelled = issueWithKey(u"MOB-1"_s);
    labelled.labels = {u"auth"_s};
    serveIssues({labelled, issueWithKey(u"MOB-2"_s)});
    reload();

    openOn(u"MOB-2"_s);
    choose(u"Étiquettes"_s);
    choose(u"auth"_s);

    EXPECT_EQ(issue(u"MOB-2"_s).labels, QStringList{u"auth"_s});
}

TEST_F(ContextMenu, AStatusIsSetOnTheSpot)
{
    serveIssues({issueWithKey(u"MOB-1"_s), issueWithKey(u"MOB-2"_s, u"En cours"_s)});
    service->transitionsCalls.answerWith(
        {{u"11"_s, u"Commencer"_s, IssueStatus::guessed(u"En cours"_s)}});
    reload();

    openOn(u"MOB-1"_s);
    choose(u"Statut"_s);
    choose(u"En cours"_s);

    EXPECT_EQ(issue(u"MOB-1"_s).status.name(), u"En cours"_s);
}

TEST_F(ContextMenu, ReturnOnATitleOpensItsRows)
{
    openOn(u"MOB-1"_s);
    await(QAccessible::MenuItem, u"Assigner"_s);
    const auto isAtAssign = [&] {
        const auto rows = spokenIn(window(), QAccessible::MenuItem, u"Assigner"_s);
        return !rows.isEmpty() && rows.first().state.focused;
    };
    for (int i = 0; i < 12 && !isAtAssign(); ++i)
        press(Qt::Key_Down);
    ASSERT_TRUE(isAtAssign());
    press(Qt::Key_Return);

    await(QAccessible::MenuItem, u"M'assigner"_s);
    EXPECT_TRUE(offers(u"Assigner"_s));
}

TEST_F(ContextMenu, TheOtherEntriesLeaveTheProgramWithTheIssue)
{
    QSignalSpy windows(&store(), &AppStore::openWindowRequested);
    openOn(u"MOB-1"_s);
    choose(u"Ouvrir dans une nouvelle fenêtre"_s);
    ASSERT_EQ(windows.size(), 1);
    EXPECT_EQ(windows.first().first().toString(), u"MOB-1"_s);

    openOn(u"MOB-2"_s);
    choose(u"Ouvrir dans Jira"_s);
    ASSERT_FALSE(desktop->opened.isEmpty());
    EXPECT_TRUE(desktop->opened.constLast().toString().endsWith(u"/browse/MOB-2"_s));

    openOn(u"MOB-3"_s);
    choose(u"Copier le lien"_s);
    EXPECT_TRUE(lastCopied().endsWith(u"/browse/MOB-3"_s));
    openOn(u"MOB-1"_s);
    choose(u"Copier le nom de branche git"_s);
    EXPECT_EQ(lastCopied(), issue(u"MOB-1"_s).branchName());
}

TEST_F(ContextMenu, TheMenuKeyOpensItOnTheFocusedIssue)
{
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Menu);
    choose(u"Copier la clé"_s);

    EXPECT_EQ(lastCopied(), u"MOB-2"_s);
}

TEST_F(ContextMenu, ShiftF10OpensItAsTheMenuKeyDoes)
{
    press(Qt::Key_Down);
    press(Qt::Key_F10, Qt::ShiftModifier);
    choose(u"Copier la clé"_s);

    EXPECT_EQ(lastCopied(), u"MOB-1"_s);
}

TEST_F(ContextMenu, TheMenuKeyBringsAFocusedIssueThatWasScrolledAwayBackIntoSight)
{
    serveMany();
    for (const auto layout : {LayoutMode::List, LayoutMode::Board}) {
        store().setLayout(layout);
        settle();
        store().setFocusedKey(u"MOB-1"_s);
        settle();
        for (int i = 0; i < 10; ++i)
            scroll(-12000);
        ASSERT_TRUE(QTest::qWaitFor([&] { return !rowsShown().contains(u"MOB-1"_s); }));
        press(Qt::Key_Menu);
        choose(u"Copier la clé"_s);

        EXPECT_EQ(lastCopied(), u"MOB-1"_s) << int(layout);
        EXPECT_TRUE(rowsShown().contains(u"MOB-1"_s)) << int(layout);
        desktop->copied.clear();
    }
}

TEST_F(ContextMenu, OnTheBoardTheKeyboardOpensItAtTheFocusedCard)
{
    store().setLayout(LayoutMode::Board);
    const auto card = await(QAccessible::ListItem, u"MOB-2,"_s);
    store().setFocusedKey(u"MOB-2"_s);
    for (const auto &[key, modifiers] :
         {std::pair(Qt::Key_Menu, Qt::NoModifier), std::pair(Qt::Key_F10, Qt::ShiftModifier)}) {
        press(key, modifiers);
        EXPECT_TRUE(card.box.contains(await(QAccessible::MenuItem, u"Statut"_s).box.topLeft() -
                                      QPoint(0, 12)));
        choose(u"Copier la clé"_s);

        EXPECT_EQ(lastCopied(), u"MOB-2"_s);
        EXPECT_TRUE(isGone(QAccessible::MenuItem, {}));
        desktop->copied.clear();
    }
}

TEST_F(ContextMenu, TheBoardHasTheSameMenu)
{
    store().setLayout(LayoutMode::Board);
    openOn(u"MOB-2"_s);
    choose(u"Copier la clé"_s);

    EXPECT_EQ(lastCopied(), u"MOB-2"_s);
}

TEST_F(ContextMenu, AReloadThatTakesTheIssueAwayLeavesAMenuThatHarmsNothing)
{
    openOn(u"MOB-3"_s);
    await(QAccessible::MenuItem, u"Copier la clé"_s);
    serve({u"MOB-1"_s});
    reload();

    choose(u"Copier la clé"_s);

    EXPECT_EQ(lastCopied(), u"MOB-3"_s);
}

TEST_F(ContextMenu, TheRowItWasOpenedOnStaysMarkedWhileThePointerIsOnTheMenu)
{
    const auto fill = [&](const QString &key) {
        const auto box = await(QAccessible::ListItem, key + u',').box;
        return window().grabWindow().pixelColor(box.left() + 30, box.top() + 4);
    };
    rightClick(await(QAccessible::ListItem, u"MOB-2,"_s));
    const auto entry = await(QAccessible::MenuItem, u"Copier la clé"_s);
    QTest::mouseMove(&window(), entry.box.center());
    settle();
    EXPECT_NE(fill(u"MOB-2"_s), fill(u"MOB-1"_s));

    press(Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([&] { return fill(u"MOB-2"_s) == fill(u"MOB-1"_s); }));
}
