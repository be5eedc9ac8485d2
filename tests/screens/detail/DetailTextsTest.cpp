#include "model/JiraError.h"
#include "richtext/ADFQueries.h"
#include "screens/detail/DetailScreen.h"

using namespace Qt::StringLiterals;

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
