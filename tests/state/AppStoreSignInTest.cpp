#include "model/JiraError.h"
#include "state/AppStoreFixture.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Phase = AppStore::Phase;

const JiraError Refused(JiraError::Http{401, {}});
const auto Locked = u"Le trousseau est verrouillé."_s;

class AppStoreSignInTest : public AppStoreFixture
{
protected:
    AppStoreSignInTest() { noam = sampleUser(u"u1"_s, u"Noam"_s); }

    TaskResult<void> connect()
    {
        return TaskResult<void>(store->connect(u"exemple"_s, u"noam@exemple.fr"_s, u"jeton"_s));
    }
    static QString messageOf(const TaskResult<void> &result)
    {
        try {
            result.value();
        } catch (const Failure &failure) {
            return failure.message();
        }
        return {};
    }

    JiraUser noam;
};

TEST_F(AppStoreSignInTest, withTheDemoStoredNoStoreOfSecretsIsRead)
{
    preferences.setFlag(u"demoMode"_s, true);
    const TaskResult<void> done(store->bootstrap());

    EXPECT_TRUE(store->startsWithDemo());
    EXPECT_EQ(sessions.asked(), 0);
}

TEST_F(AppStoreSignInTest, signingOutOfADemoTouchesNoStoreOfSecrets)
{
    startSession();
    store->signOut();

    EXPECT_EQ(sessions.asked(), 0);
}

TEST_F(AppStoreSignInTest, savedCredentialsOpenTheirSessionWithoutBeingTried)
{
    sessions.restoreCalls.answerWith(SiteSessions::Opened{sessions.service});
    const TaskResult<void> done(store->bootstrap());

    EXPECT_EQ(store->phase(), Phase::Ready) << "before anything was fetched";
    EXPECT_FALSE(store->isDemo());
    EXPECT_EQ(service->currentUserCalls.count(), 1);
    EXPECT_EQ(demosMade, 0);
}

TEST_F(AppStoreSignInTest, theLaunchScreenStaysWhileTheStoreOfSecretsIsAsked)
{
    sessions.restoreCalls.hold();
    const TaskResult<void> done(store->bootstrap());
    EXPECT_EQ(store->phase(), Phase::Launching);

    sessions.restoreCalls[0].finish(SiteSessions::None());
    EXPECT_EQ(store->phase(), Phase::SignedOut);
    EXPECT_FALSE(store->credentialsIssue());
}

TEST_F(AppStoreSignInTest, aRefusedReadSaysWhyOnTheFirstScreenUntilItSucceeds)
{
    sessions.restoreCalls.answerWith(SiteSessions::Blocked{Locked});
    const TaskResult<void> done(store->bootstrap());

    EXPECT_EQ(store->phase(), Phase::SignedOut);
    EXPECT_EQ(store->credentialsIssue(), Locked);

    sessions.restoreCalls.answerWith(SiteSessions::None());
    store->retrySavedSession();
    EXPECT_EQ(store->credentialsIssue(), Locked) << "nothing found is no answer to it";

    sessions.restoreCalls.answerWith(SiteSessions::Opened{sessions.service});
    store->retrySavedSession();
    EXPECT_FALSE(store->credentialsIssue());
    EXPECT_EQ(store->phase(), Phase::Ready);
}

TEST_F(AppStoreSignInTest, aSessionBegunWhileTheStoreOfSecretsWasAskedStands)
{
    sessions.restoreCalls.hold();
    store->retrySavedSession();
    startSession();
    sessions.restoreCalls[0].finish(SiteSessions::Opened{sessions.service});

    EXPECT_TRUE(store->isDemo());
    EXPECT_EQ(service->currentUserCalls.count(), 1);
}

TEST_F(AppStoreSignInTest, pressingRetryTwiceOpensOneSession)
{
    sessions.restoreCalls.hold();
    store->retrySavedSession();
    store->retrySavedSession();
    sessions.restoreCalls[0].finish(SiteSessions::Opened{sessions.service});
    sessions.restoreCalls[1].finish(SiteSessions::Opened{sessions.service});

    EXPECT_EQ(service->currentUserCalls.count(), 1);
}

TEST_F(AppStoreSignInTest, aTokenThatWasRevokedSinceShowsInTheList)
{
    sessions.restoreCalls.answerWith(SiteSessions::Opened{sessions.service});
    service->currentUserCalls.failWith(Refused);
    service->issuesCalls.failWith(Refused);
    const TaskResult<void> done(store->bootstrap());

    EXPECT_EQ(store->phase(), Phase::Ready);
    EXPECT_EQ(store->loadError(), Refused.message());
}

TEST_F(AppStoreSignInTest, aNetworkThatIsDownAtTheStartIsToldAndTheNextRefreshMakesGood)
{
    const Failure offline(u"Tu sembles hors ligne."_s);
    sessions.restoreCalls.answerWith(SiteSessions::Opened{sessions.service});
    service->currentUserCalls.failWith(offline);
    service->issuesCalls.failWith(offline);
    const TaskResult<void> done(store->bootstrap());

    EXPECT_TRUE(done.isDone());
    EXPECT_EQ(store->loadError(), offline.message());
    EXPECT_FALSE(store->isLoading());

    answerEverything();
    service->projectsCalls.answerWith({sampleProject(u"WEB"_s)});
    service->issuesCalls.answerWith({sampleIssue(u"WEB-1"_s)});
    store->refresh();

    EXPECT_FALSE(store->loadError());
    EXPECT_EQ(keys(store->issues()), QStringList(u"WEB-1"_s));
    EXPECT_EQ(store->me(), sampleUser(u"u1"_s, u"Noam Talvère"_s));
    EXPECT_EQ(store->projects(), QList{sampleProject(u"WEB"_s)});

    store->refresh();
    EXPECT_EQ(service->currentUserCalls.count(), 2) << "what is known is not asked again";
}

TEST_F(AppStoreSignInTest, whileTheAccountIsUnknownNothingIsAssignedToItAndAToastSaysSo)
{
    sessions.restoreCalls.answerWith(SiteSessions::Opened{sessions.service});
    service->currentUserCalls.failWith(Failure(u"Tu sembles hors ligne."_s));
    service->issuesCalls.answerWith({sampleIssue(u"WEB-1"_s)});
    const TaskResult<void> done(store->bootstrap());
    store->setFocusedKey(u"WEB-1"_s);
    store->run(Command::AssignToMe);

    EXPECT_EQ(service->assignCalls.count(), 0);
    ASSERT_EQ(store->toasts().size(), 1);
    EXPECT_EQ(store->toasts().first().kind, ToastKind::Error);
}

TEST_F(AppStoreSignInTest, whatASiteAnswersAfterItsSessionComesIntoNoOther)
{
    const auto site = std::make_shared<ScriptedService>();
    sessions.service = site;
    sessions.restoreCalls.answerWith(SiteSessions::Opened{sessions.service});
    site->currentUserCalls.hold();
    const TaskResult<void> done(store->bootstrap());
    store->signOut();
    startSession();
    site->projectsCalls.answerWith({sampleProject(u"LOIN"_s)});
    site->currentUserCalls[0].finish(sampleUser(u"u9"_s, u"Autre"_s));

    EXPECT_EQ(store->me(), sampleUser(u"u1"_s, u"Noam Talvère"_s));
    EXPECT_EQ(store->projects(), QList<Project>());
    EXPECT_FALSE(store->loadError());
    EXPECT_EQ(site->issuesCalls.count(), 0);
}

TEST_F(AppStoreSignInTest, aFailureOfASiteAfterItsSessionIsToldInNoOther)
{
    const auto site = std::make_shared<ScriptedService>();
    sessions.service = site;
    sessions.restoreCalls.answerWith(SiteSessions::Opened{sessions.service});
    site->currentUserCalls.hold();
    const TaskResult<void> done(store->bootstrap());
    store->signOut();
    startSession();
    site->currentUserCalls[0].fail(Refused);

    EXPECT_FALSE(store->loadError());
}

TEST_F(AppStoreSignInTest, aGoodSignInIsTriedKeptAndOpenedInThisOrder)
{
    preferences.setFlag(u"demoMode"_s, true);
    sessions.keepCalls.hold();
    const auto done = connect();

    EXPECT_EQ(sessions.opened, QList{(SignIn{u"exemple"_s, u"noam@exemple.fr"_s, u"jeton"_s})});
    ASSERT_EQ(service->currentUserCalls.count(), 1);
    EXPECT_EQ(sessions.keepCalls.count(), 0) << "not before they are known to be good";
    service->currentUserCalls[0].finish(noam);

    ASSERT_EQ(sessions.keepCalls.count(), 1);
    EXPECT_EQ(sessions.keepCalls[0].argument(), sessions.opened[0]);
    EXPECT_EQ(store->phase(), Phase::Launching);
    sessions.keepCalls[0].finish();

    EXPECT_EQ(store->phase(), Phase::Ready);
    EXPECT_FALSE(store->isDemo());
    EXPECT_EQ(preferences.flag(u"demoMode"_s), false);
    EXPECT_EQ(store->me(), noam);
    EXPECT_EQ(service->currentUserCalls.count(), 1) << "the account is known already";
}

TEST_F(AppStoreSignInTest, blanksAndLineBreaksAroundEmailAndTokenAreTrimmed)
{
    const TaskResult<void> done(
        store->connect(u" exemple "_s, u" noam@exemple.fr\t"_s, u"jeton\n"_s));

    EXPECT_EQ(sessions.opened[0].email, u"noam@exemple.fr"_s);
    EXPECT_EQ(sessions.opened[0].token, u"jeton"_s);
}

TEST_F(AppStoreSignInTest, anInvalidSiteFailsBeforeAnythingIsAsked)
{
    sessions.isSiteValid = false;
    const TaskResult<void> done(store->connect(u"://"_s, u"noam@exemple.fr"_s, u"jeton"_s));

    EXPECT_EQ(messageOf(done), JiraError(JiraError::InvalidSite{}).message());
    EXPECT_EQ(service->currentUserCalls.count(), 0);
    EXPECT_EQ(store->phase(), Phase::Launching);
}

TEST_F(AppStoreSignInTest, refusedCredentialsAreNotKeptAndChangeNothing)
{
    startSession();
    reloadWith({sampleIssue(u"WEB-1"_s)});
    const int asked = sessions.asked();
    service->currentUserCalls.failWith(Refused);
    const auto done = connect();

    EXPECT_EQ(messageOf(done), Refused.message());
    EXPECT_EQ(sessions.asked(), asked);
    EXPECT_TRUE(store->isDemo());
    EXPECT_EQ(preferences.flag(u"demoMode"_s), true);
    EXPECT_EQ(keys(store->issues()), QStringList(u"WEB-1"_s));
}

TEST_F(AppStoreSignInTest, credentialsThatCannotBeKeptAreRefusedThoughTheSiteAnswered)
{
    sessions.restoreCalls.answerWith(SiteSessions::Blocked{Locked});
    const TaskResult<void> started(store->bootstrap());
    service->currentUserCalls.answerWith(noam);
    sessions.keepCalls.failWith(Failure(Locked));
    const auto done = connect();

    EXPECT_EQ(messageOf(done), Locked);
    EXPECT_EQ(store->phase(), Phase::SignedOut);
    EXPECT_EQ(store->credentialsIssue(), Locked);
    EXPECT_FALSE(store->me());
}

TEST_F(AppStoreSignInTest, aSignInClearsTheNoticeOfARefusedRead)
{
    sessions.restoreCalls.answerWith(SiteSessions::Blocked{Locked});
    const TaskResult<void> started(store->bootstrap());
    service->currentUserCalls.answerWith(noam);
    const auto done = connect();

    EXPECT_FALSE(store->credentialsIssue());
}

TEST_F(AppStoreSignInTest, aSignInDuringASessionReplacesIt)
{
    startSession();
    reloadWith({sampleIssue(u"WEB-1"_s)});
    service->currentUserCalls.answerWith(noam);
    const auto done = connect();

    EXPECT_FALSE(store->isDemo());
    EXPECT_TRUE(store->issues().isEmpty());
    EXPECT_EQ(service->projectsCalls.count(), 2) << "the new session fetches anew";
}

TEST_F(AppStoreSignInTest, signingOutDeletesTheTokenAndTheFormCanOfferTheSiteAgain)
{
    sessions.last = {u"https://exemple.atlassian.net"_s, u"noam@exemple.fr"_s, {}};
    answerEverything();
    const auto done = connect();
    store->signOut();

    EXPECT_EQ(sessions.forgetCalls.count(), 1);
    EXPECT_EQ(store->phase(), Phase::SignedOut);
    EXPECT_EQ(store->lastSignIn(), sessions.last);
}

TEST_F(AppStoreSignInTest, aTokenThatCannotBeDeletedDoesNotHinderTheSignOut)
{
    answerEverything();
    const auto done = connect();
    sessions.forgetCalls.hold();
    store->signOut();

    EXPECT_EQ(store->phase(), Phase::SignedOut);
    EXPECT_EQ(clock.pending(), 0);
}

TEST_F(AppStoreSignInTest, aTokenThatStaysInTheKeyringIsToldInAToast)
{
    answerEverything();
    const auto done = connect();
    sessions.forgetCalls.hold();
    store->signOut();
    sessions.forgetCalls.last().fail(Failure(u"Le trousseau est verrouillé."_s));

    EXPECT_EQ(store->phase(), Phase::SignedOut);
    ASSERT_EQ(store->toasts().size(), 1);
    EXPECT_EQ(store->toasts().last().message,
              u"Le token est resté dans le trousseau. Le trousseau est verrouillé."_s);
    EXPECT_EQ(store->toasts().last().kind, ToastKind::Error);
}

TEST_F(AppStoreSignInTest, aStoreThatGoesDuringASignOutEndsIt)
{
    answerEverything();
    const auto done = connect();
    sessions.forgetCalls.hold();
    store->signOut();
    store.reset();
    sessions.forgetCalls.last().fail(Failure(u"Le trousseau est verrouillé."_s));
}

TEST_F(AppStoreSignInTest, aStoreThatGoesDuringASignInEndsIt)
{
    const auto done = connect();
    store.reset();
    service->currentUserCalls[0].finish(noam);

    EXPECT_TRUE(done.isDone());
    EXPECT_EQ(sessions.keepCalls.count(), 0);
}

} // namespace
