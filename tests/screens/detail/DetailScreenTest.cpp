#include "screens/detail/DetailScreen.h"

#include "model/JiraError.h"
#include "richtext/ADFMarkdown.h"

#include <QClipboard>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

/// An issue with sixty sub-issues, whose details have not arrived yet.
class DetailTallPage : public DetailScreen
{
protected:
    DetailTallPage()
    {
        tall = issueWithKey(u"MOB-2"_s);
        for (int i = 0; i < 60; ++i)
            tall.subtasks +=
                IssueRef{{}, u"MOB-%1"_s.arg(100 + i), u"Sous-ticket %1"_s.arg(i), {}, {}};
        serveIssues({tall, issueWithKey(u"MOB-1"_s)});
        reload();
        service->issueCalls.hold();
        openIssue();
    }
    void focusSubIssue(const QString &key)
    {
        const auto isFocused = [&] {
            auto *const item = window().activeFocusItem();
            auto *const known = item ? QAccessible::queryAccessibleInterface(item) : nullptr;
            return known && known->text(QAccessible::Name).startsWith(key);
        };
        for (int i = 0; i < 60 && !isFocused(); ++i)
            press(Qt::Key_Tab);
        ASSERT_TRUE(isFocused());
        settle();
    }
    /// The details arrive, with a description that is higher than the window.
    void describe()
    {
        QString text;
        for (int i = 0; i < 60; ++i)
            text += u"Paragraphe %1\n\n"_s.arg(i);
        tall.description = ADFMarkdown::document(text);
        service->issueCalls.last().finish(tall);
        await(QAccessible::Paragraph, u"Paragraphe 59"_s);
    }
    int topOf(const QString &name) { return find(QAccessible::Button, name).box.top(); }
    bool isInSight(const QString &name)
    {
        const auto row = find(QAccessible::Button, name).box;
        const auto title = find(QAccessible::Button, u"Copier la clé MOB-2"_s).box;
        const auto composer = find(QAccessible::Grouping, u"Nouveau commentaire"_s).box;
        return row.top() >= title.bottom() && row.bottom() <= composer.top();
    }
    void turnWheel(int angle)
    {
        const QPoint place = find(QAccessible::Grouping, u"Nouveau commentaire"_s).box.center();
        const QPoint above(place.x(), window().height() / 2);
        QWheelEvent turn(above, window().mapToGlobal(above), {}, {0, angle}, {}, {},
                         Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&window(), &turn);
        settle();
    }

    Issue tall;
};

TEST_F(DetailScreen, TheKeyInTheBreadcrumbIsCopied)
{
    openIssue();
    click(find(QAccessible::Button, u"Copier la clé MOB-2"_s));
    EXPECT_EQ(lastCopied(), u"MOB-2"_s);
}

TEST_F(DetailScreen, TheParentInTheBreadcrumbIsFocusedAndOpened)
{
    openIssue();
    click(find(QAccessible::Button, u"Ticket parent MOB-1, Résumé de MOB-1"_s));
    awaitTitle(u"Résumé de MOB-1"_s);
    EXPECT_EQ(store().focusedKey(), u"MOB-1"_s);
    EXPECT_EQ(store().inspectorKey(), u"MOB-1"_s);
}

TEST_F(DetailScreen, SubIssuesTellHowManyAreDoneAndOpenByAPress)
{
    openIssue();
    await(QAccessible::Grouping, u"Sous-tickets, 1 sur 3"_s);
    EXPECT_TRUE(spokenIn(window(), QAccessible::Button, u"MOB-33, Sans statut"_s).size() == 1);
    ASSERT_TRUE(pressAction(window(), QAccessible::Button, u"MOB-31, Ouverte, À faire"_s));
    EXPECT_EQ(store().focusedKey(), u"MOB-31"_s);
    EXPECT_EQ(store().inspectorKey(), u"MOB-31"_s);
}

TEST_F(DetailScreen, AnIssueWithoutSubIssuesHasNoSectionForThem)
{
    openIssue(u"MOB-1"_s);
    EXPECT_TRUE(spokenIn(window(), QAccessible::Grouping, u"Sous-tickets"_s).isEmpty());
}

TEST_F(DetailScreen, WithoutADueDateTheCalendarOpensOnTodayAndSetsIt)
{
    openIssue();
    click(find(QAccessible::Button, u"Échéance"_s));
    await(QAccessible::Grouping, u"Calendrier"_s);
    press(Qt::Key_Right);
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(isGone(QAccessible::Grouping, u"Calendrier"_s));
    const QDate tomorrow = store().calendar().day(store().now()).addDays(1);
    EXPECT_EQ(sent(), QStringList(tomorrow.toString(Qt::ISODate)));
    await(QAccessible::Button, u"Échéance : Demain"_s);
}

TEST_F(DetailScreen, ADueDateIsRemovedByItsButton)
{
    serveDueDate(QDate(2026, 12, 3), u"À faire"_s);
    openIssue();
    click(await(QAccessible::Button, u"Échéance : "_s));
    await(QAccessible::Grouping, u"Calendrier"_s);
    click(find(QAccessible::Button, u"Retirer"_s));
    EXPECT_TRUE(isGone(QAccessible::Grouping, u"Calendrier"_s));
    EXPECT_EQ(sent(), QStringList(u"-"_s));
}

TEST_F(DetailScreen, ADueDateThatIsOverIsToldUnlessTheIssueIsClosed)
{
    serveDueDate(QDate(2026, 1, 5), u"À faire"_s);
    openIssue();
    await(QAccessible::Button, u", en retard"_s);
    serveDueDate(QDate(2026, 1, 5), u"Terminé"_s);
    EXPECT_TRUE(isGone(QAccessible::Button, u", en retard"_s));
}

TEST_F(DetailScreen, ARefreshWhileTheCalendarIsOpenDoesNotMoveTheChosenDay)
{
    openIssue();
    click(find(QAccessible::Button, u"Échéance"_s));
    await(QAccessible::Grouping, u"Calendrier"_s);
    press(Qt::Key_Right);
    serveDueDate(QDate(2026, 12, 24), u"À faire"_s);
    settle();
    press(Qt::Key_Return);
    const QDate tomorrow = store().calendar().day(store().now()).addDays(1);
    EXPECT_EQ(sent(), QStringList(tomorrow.toString(Qt::ISODate)));
}

TEST_F(DetailScreen, ATypeIsShownAndCannotBeChanged)
{
    openIssue();
    await(QAccessible::StaticText, u"Type : Bug"_s);
}

TEST_F(DetailScreen, TabEntersTheIssueAndPageKeysThenScrollItWhileTheListStands)
{
    Issue tall = issueWithKey(u"MOB-2"_s);
    for (int i = 0; i < 60; ++i)
        tall.subtasks += IssueRef{{}, u"MOB-%1"_s.arg(100 + i), u"Sous-ticket"_s, {}, {}};
    serveIssues({tall, issueWithKey(u"MOB-1"_s)});
    reload();
    openIssue();
    const auto top = [&] { return find(QAccessible::Button, u"Échéance"_s).box.top(); };
    const int before = top();
    for (int i = 0; i < 60; ++i) {
        auto *item = window().activeFocusItem();
        auto *spoken = item ? QAccessible::queryAccessibleInterface(item) : nullptr;
        if (spoken && spoken->text(QAccessible::Name).startsWith(u"Échéance"_s))
            break;
        press(Qt::Key_Tab);
    }
    press(Qt::Key_PageDown);
    EXPECT_TRUE(QTest::qWaitFor([&] { return top() < before; }));
    EXPECT_EQ(store().focusedKey(), u"MOB-2"_s);
    press(Qt::Key_Home);
    EXPECT_TRUE(QTest::qWaitFor([&] { return top() == before; }));
}

TEST_F(DetailScreen, AnIssueThatCannotBeFetchedSaysSoAndIsFetchedAgain)
{
    service->issueCalls.hold();
    store().setInspectorKey(u"MOB-9"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return service->issueCalls.count() > 0; }));
    service->issueCalls.last().fail(JiraError(JiraError::Http{500, u"Panne du site."_s}));
    await(QAccessible::Grouping, u"Ticket indisponible"_s);
    const auto calls = service->issueCalls.count();
    click(find(QAccessible::Button, u"Réessayer"_s));
    ASSERT_EQ(service->issueCalls.count(), calls + 1);
    service->issueCalls.last().finish(issueWithKey(u"MOB-9"_s));
    awaitTitle(u"Résumé de MOB-9"_s);
}

TEST_F(DetailScreen, ACalendarClosesWhenAnotherIssueIsShown)
{
    openIssue();
    click(find(QAccessible::Button, u"Échéance"_s));
    await(QAccessible::Grouping, u"Calendrier"_s);
    store().openInInspector(u"MOB-1"_s);
    EXPECT_TRUE(isGone(QAccessible::Grouping, u"Calendrier"_s));
    EXPECT_EQ(sent(), QStringList());
}

TEST_F(DetailScreen, AnotherIssueIsShownFromItsBeginning)
{
    Issue tall = issueWithKey(u"MOB-2"_s);
    for (int i = 0; i < 60; ++i)
        tall.subtasks += IssueRef{{}, u"MOB-%1"_s.arg(100 + i), u"Sous-ticket"_s, {}, {}};
    Issue other = tall;
    other.key = u"MOB-1"_s;
    serveIssues({tall, other});
    reload();
    openIssue();
    const auto chip = find(QAccessible::Button, u"Échéance"_s).box;
    for (int i = 0; i < 5; ++i) {
        const QPoint place = chip.center();
        QWheelEvent turn(place, window().mapToGlobal(place), {}, {0, -120}, {}, {},
                         Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&window(), &turn);
    }
    const auto tops = [&] {
        const auto found = spokenIn(window(), QAccessible::Button, u"Échéance"_s);
        return found.isEmpty() ? -1000 : found.first().box.top();
    };
    ASSERT_TRUE(QTest::qWaitFor([&] { return tops() < chip.top(); }));
    store().openInInspector(u"MOB-1"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return tops() == chip.top(); }));
}

TEST_F(DetailTallPage, AFocusedSubIssueStaysInSightWhenADescriptionArrivesAboveIt)
{
    focusSubIssue(u"MOB-103"_s);
    EXPECT_TRUE(isInSight(u"MOB-103"_s));
    describe();
    EXPECT_TRUE(isInSight(u"MOB-103"_s)) << topOf(u"MOB-103"_s);
}

TEST_F(DetailTallPage, DataThatArriveDoNotBringTheUserBackToWhatHasTheFocus)
{
    focusSubIssue(u"MOB-103"_s);
    for (int i = 0; i < 20; ++i)
        turnWheel(-120);
    ASSERT_FALSE(isInSight(u"MOB-103"_s));
    const int before = topOf(u"Échéance"_s);
    describe();
    EXPECT_EQ(topOf(u"Échéance"_s), before);
}

TEST_F(DetailScreen, TheFilesOfACommentStandBelowIt)
{
    Issue issue = **store().issue(u"MOB-2"_s);
    Attachment file;
    file.id = u"7"_s;
    file.filename = u"journal.log"_s;
    issue.attachments += file;
    serveIssues({issue});
    Comment comment;
    comment.id = u"c1"_s;
    comment.created = issue.created;
    comment.attachmentIDs = {u"7"_s};
    service->commentsCalls.answerWith({comment});
    reload();
    openIssue();
    await(QAccessible::Button, u"journal.log"_s);
}

/// The description is read by keys, in the window whose key map knows the same keys.
class DetailReading : public DetailScreen
{
protected:
    DetailReading()
    {
        Issue issue = **store().issue(u"MOB-2"_s);
        issue.subtasks.clear();
        issue.description =
            ADFMarkdown::document(u"Voir [la page](https://exemple.fr/page).\n\nFin."_s);
        issue.hasDetails = true;
        serveIssues({issue, issueWithKey(u"MOB-1"_s)});
        reload();
        openIssue();
        for (int i = 0; i < 60 && !hasFocus(u"Description"_s); ++i)
            press(Qt::Key_Tab);
        EXPECT_TRUE(hasFocus(u"Description"_s));
    }

    bool hasFocus(const QString &name)
    {
        auto *item = window().activeFocusItem();
        auto *spoken = item ? QAccessible::queryAccessibleInterface(item) : nullptr;
        return spoken && spoken->text(QAccessible::Name) == name;
    }
    QString copied()
    {
        QGuiApplication::clipboard()->clear();
        press(Qt::Key_C, Qt::ControlModifier);
        return QGuiApplication::clipboard()->text();
    }
};

TEST_F(DetailReading, ReturnOpensTheLinkThatHasTheFocus)
{
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    ASSERT_EQ(desktop->opened.size(), 1);
    EXPECT_EQ(desktop->opened.first(), QUrl(u"https://exemple.fr/page"_s));
}

TEST_F(DetailReading, ControlASelectsTheTextAndNoIssue)
{
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_FALSE(store().isSelecting());
    EXPECT_TRUE(copied().contains(u"Fin."_s));
}

TEST_F(DetailReading, ShiftWithTheArrowsSelectsTextAndNoIssue)
{
    press(Qt::Key_Right, Qt::ShiftModifier);
    press(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_FALSE(store().isSelecting());
    EXPECT_EQ(store().focusedKey(), u"MOB-2"_s);
    EXPECT_TRUE(copied().startsWith(u"Voir"_s));
}

TEST_F(DetailReading, TheKeyMapWorksForTheOtherKeys)
{
    press(Qt::Key_K);
    awaitTitle(u"Résumé de MOB-1"_s);
}
