#include "app/WindowFixture.h"
#include "model/JiraError.h"
#include "richtext/ADFQueries.h"
#include "screens/kit/layers/WindowLayers.h"

#include <QQuickItem>
#include <QTest>

using namespace Qt::StringLiterals;

/// An issue beside the list of the main window, used by keys and pointer.
class DetailScreen : public WindowFixture
{
protected:
    DetailScreen()
    {
        Preferences(preferencesPath).setText(u"ordering"_s, u"key"_s);
        Issue parent = issueWithKey(u"MOB-1"_s);
        Issue child = issueWithKey(u"MOB-2"_s);
        child.type = IssueType{.id = u"10"_s, .name = u"Bug"_s};
        child.parent = IssueRef{u"id-MOB-1"_s, u"MOB-1"_s, u"Résumé de MOB-1"_s, {}, {}};
        child.subtasks = {
            {u"31"_s, u"MOB-31"_s, u"Ouverte"_s, IssueStatus::guessed(u"À faire"_s), {}},
            {u"32"_s, u"MOB-32"_s, u"Faite"_s, IssueStatus::guessed(u"Terminé"_s), {}},
            {u"33"_s, u"MOB-33"_s, u"Sans statut"_s, {}, {}}};
        serveIssues({parent, child});
        service->issueCalls.answerBy(
            [this](const QString &key) { return *store().issue(key).value_or(SharedIssue()); });
        openOnDemo();
        desktop->setPrefersReducedMotion(true);
        settle();
    }

    void openIssue(const QString &key = u"MOB-2"_s)
    {
        store().setFocusedKey(key);
        press(Qt::Key_Return);
        // The field tells ordinary blanks.
        awaitTitle(QString((*store().issue(key))->summary).replace(u'\u00a0', u' '));
    }
    void awaitTitle(const QString &title)
    {
        EXPECT_TRUE(QTest::qWaitFor([&] { return titleShown() == title; }))
            << titleShown().toStdString();
        settle();
    }
    QString titleShown()
    {
        const auto fields = spokenIn(window(), QAccessible::EditableText, u"Titre"_s);
        return fields.size() == 1 ? fields.first().value : u"(missing)"_s;
    }
    void editTitle(const QString &text)
    {
        click(find(QAccessible::EditableText, u"Titre"_s));
        press(Qt::Key_A, Qt::ControlModifier);
        type(text);
    }
    bool isTyping() { return WindowLayers::of(window()).isTyping(); }
    /// All titles and due dates that were sent; an absent date is "-".
    QStringList sent()
    {
        QStringList values;
        for (int i = 0; i < service->updateCalls.count(); ++i) {
            const auto &update = service->updateCalls[i].argument<1>().value;
            if (const auto *title = std::get_if<IssueFieldUpdate::Summary>(&update))
                values += title->text;
            if (const auto *date = std::get_if<IssueFieldUpdate::DueDate>(&update))
                values += date->day ? date->day->toString(Qt::ISODate) : u"-"_s;
        }
        return values;
    }
    void serveTitle(const QString &title)
    {
        Issue changed = **store().issue(u"MOB-2"_s);
        changed.summary = title;
        serveIssues({changed});
        reload();
        settle();
    }
    void serveDueDate(const std::optional<QDate> &day, const QString &status)
    {
        Issue changed = issueWithKey(u"MOB-2"_s, status);
        changed.dueDate = day;
        serveIssues({changed});
        reload();
    }
};

TEST_F(DetailScreen, ATitleOfBlanksOnlyIsNotSentAndTheFieldShowsTheOldSummaryAgain)
{
    openIssue();
    editTitle(u"   "_s);
    press(Qt::Key_Return);
    EXPECT_EQ(titleShown(), u"Résumé de MOB-2"_s);
    EXPECT_EQ(sent(), QStringList());
}

TEST_F(DetailScreen, AnEmptiedTitleNeverReachesTheSite)
{
    openIssue();
    click(find(QAccessible::EditableText, u"Titre"_s));
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Delete);
    EXPECT_EQ(titleShown(), u""_s);
    press(Qt::Key_Return);
    EXPECT_EQ(titleShown(), u"Résumé de MOB-2"_s);
    EXPECT_EQ(sent(), QStringList());
}

TEST_F(DetailScreen, ReturnSendsTheTrimmedTitleAndGivesTheKeysBackToTheList)
{
    openIssue();
    editTitle(u"  Nouveau titre "_s);
    press(Qt::Key_Return);
    EXPECT_EQ(sent(), QStringList(u"Nouveau titre"_s));
    EXPECT_EQ(titleShown(), u"Nouveau titre"_s);
    EXPECT_FALSE(isTyping());
    press(Qt::Key_K);
    awaitTitle(u"Résumé de MOB-1"_s);
}

TEST_F(DetailScreen, ATitleIsSentWhenItsFieldLosesTheFocus)
{
    openIssue();
    editTitle(u"Autre titre"_s);
    press(Qt::Key_Tab);
    EXPECT_EQ(sent(), QStringList(u"Autre titre"_s));
}

TEST_F(DetailScreen, AnUnchangedTitleIsNotSent)
{
    openIssue();
    editTitle(u"Résumé de MOB-2 "_s);
    press(Qt::Key_Tab);
    EXPECT_EQ(sent(), QStringList());
}

TEST_F(DetailScreen, EscapeLeavesTheTitleAsItWasAndKeepsTheIssueOpen)
{
    openIssue();
    editTitle(u"Jeté"_s);
    press(Qt::Key_Escape);
    EXPECT_EQ(titleShown(), u"Résumé de MOB-2"_s);
    EXPECT_EQ(sent(), QStringList());
    EXPECT_FALSE(isTyping());
    EXPECT_TRUE(store().showInspector());
    press(Qt::Key_Escape);
    EXPECT_FALSE(store().showInspector());
}

TEST_F(DetailScreen, ARefreshDuringTypingDoesNotMoveTheTextAndLaterOnesAreShown)
{
    openIssue();
    editTitle(u"En train d'écrire"_s);
    serveTitle(u"Titre du serveur"_s);
    EXPECT_EQ(titleShown(), u"En train d'écrire"_s);
    press(Qt::Key_Escape);
    EXPECT_EQ(titleShown(), u"Titre du serveur"_s);
    serveTitle(u"Encore un autre"_s);
    EXPECT_EQ(titleShown(), u"Encore un autre"_s);
}

TEST_F(DetailScreen, ATitleIsSentWhenAPressOpensAnotherIssue)
{
    openIssue();
    editTitle(u"Vite renommé"_s);
    click(find(QAccessible::ListItem, u"MOB-1,"_s));
    awaitTitle(u"Résumé de MOB-1"_s);
    EXPECT_EQ(sent(), QStringList(u"Vite renommé"_s));
    EXPECT_EQ(service->updateCalls.last().argument(), u"MOB-2"_s);
}

TEST_F(DetailScreen, NoKeyOfTheKeyMapWorksWhileATitleIsTyped)
{
    openIssue();
    editTitle(u"jkxspali12c"_s);
    EXPECT_EQ(titleShown(), u"jkxspali12c"_s);
    EXPECT_EQ(store().focusedKey(), u"MOB-2"_s);
    EXPECT_FALSE(store().isSelecting());
    EXPECT_FALSE(store().palette());
}

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

TEST_F(DetailScreen, SigningOutWhileATitleIsTypedSendsNothingToTheNextSession)
{
    openIssue();
    editTitle(u"Tapé trop tard"_s);
    store().signOut();
    ASSERT_TRUE(QTest::qWaitFor([&] { return store().phase() == AppStore::Phase::SignedOut; }));
    EXPECT_EQ(sent(), QStringList());
}

TEST_F(DetailScreen, ACommentThatWasBegunDoesNotGoToTheNextIssue)
{
    openIssue();
    click(find(QAccessible::EditableText, u"Commentaire"_s));
    type(u"Pour MOB-2"_s);
    click(find(QAccessible::ListItem, u"MOB-1,"_s));
    awaitTitle(u"Résumé de MOB-1"_s);
    EXPECT_EQ(find(QAccessible::EditableText, u"Commentaire"_s).value, QString());
    EXPECT_FALSE(isTyping());
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(service->addCommentCalls.count(), 0);
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

TEST_F(DetailScreen, ARefusedTitleIsTakenBackAndSaid)
{
    service->updateCalls.hold();
    openIssue();
    editTitle(u"Refusé"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(titleShown(), u"Refusé"_s);
    service->updateCalls.last().fail(JiraError(JiraError::Http{400, u"Champ verrouillé."_s}));
    EXPECT_EQ(titleShown(), u"Résumé de MOB-2"_s);
    await(QAccessible::AlertMessage, u"Champ verrouillé."_s);
}

TEST_F(DetailScreen, ATitleWithNoBreakSpacesThatIsOnlyVisitedIsNotSent)
{
    serveTitle(u"Prix\u00a0: 3\u00a0€"_s);
    openIssue();
    click(find(QAccessible::EditableText, u"Titre"_s));
    press(Qt::Key_Tab);
    EXPECT_EQ(sent(), QStringList());
    click(find(QAccessible::EditableText, u"Titre"_s));
    press(Qt::Key_End);
    type(u"\u00a0!"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(sent(), QStringList(u"Prix\u00a0: 3\u00a0€\u00a0!"_s));
}

TEST_F(DetailScreen, NoBreakSpacesOfACommentAreSent)
{
    openIssue();
    click(find(QAccessible::EditableText, u"Commentaire"_s));
    type(u"Vu\u00a0!"_s);
    press(Qt::Key_Return, Qt::ControlModifier);
    ASSERT_EQ(service->addCommentCalls.count(), 1);
    EXPECT_EQ(ADF::plainText(service->addCommentCalls.last().argument<1>()).trimmed(),
              u"Vu\u00a0!"_s);
}
