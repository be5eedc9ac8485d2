#include "model/JiraError.h"
#include "state/AppStoreFixture.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Phase = AppStore::Phase;

const JiraError Refused(JiraError::Http{500, u"Panne."_s});

class AppStoreSessionTest : public AppStoreFixture
{
};

TEST_F(AppStoreSessionTest, aStoreIsLaunchingUntilItIsBootstrapped)
{
    EXPECT_EQ(store->phase(), Phase::Launching);
    EXPECT_FALSE(store->me());
    EXPECT_EQ(store->scope(), IssueScope::myIssues());
}

TEST_F(AppStoreSessionTest, bootstrapWithoutDemoModeEndsSignedOutAndOpensNothing)
{
    const TaskResult<void> done(store->bootstrap());

    EXPECT_TRUE(done.isDone());
    EXPECT_EQ(store->phase(), Phase::SignedOut);
    EXPECT_EQ(demosMade, 0);
}

TEST_F(AppStoreSessionTest, bootstrapInDemoModeOpensADemo)
{
    preferences.setFlag(u"demoMode"_s, true);
    answerEverything();
    const TaskResult<void> done(store->bootstrap());

    EXPECT_TRUE(done.isDone());
    EXPECT_EQ(store->phase(), Phase::Ready);
    EXPECT_TRUE(store->isDemo());
    EXPECT_EQ(demosMade, 1);
}

TEST_F(AppStoreSessionTest, bootstrapCalledTwiceDoesNothingTheSecondTime)
{
    preferences.setFlag(u"demoMode"_s, true);
    const TaskResult<void> first(store->bootstrap());
    const TaskResult<void> second(store->bootstrap());

    EXPECT_FALSE(first.isDone());
    EXPECT_TRUE(second.isDone());
    EXPECT_EQ(demosMade, 1);
    EXPECT_EQ(service->currentUserCalls.count(), 1);
}

TEST_F(AppStoreSessionTest, bootstrapAfterASignOutDoesNotOpenTheSessionAgain)
{
    preferences.setFlag(u"demoMode"_s, true);
    answerEverything();
    const TaskResult<void> first(store->bootstrap());
    store->signOut();
    const TaskResult<void> second(store->bootstrap());

    EXPECT_EQ(store->phase(), Phase::SignedOut);
    EXPECT_EQ(demosMade, 1);
}

TEST_F(AppStoreSessionTest, theMainScreenShowsBeforeAnythingWasFetched)
{
    const TaskResult<void> started(store->startDemo());

    EXPECT_FALSE(started.isDone());
    EXPECT_EQ(store->phase(), Phase::Ready);
    EXPECT_EQ(store->siteName(), u"exemple.atlassian.net"_s);
    EXPECT_EQ(store->siteShortName(), u"exemple"_s);
    EXPECT_TRUE(store->issues().isEmpty());
}

TEST_F(AppStoreSessionTest, aDataCenterHostKeepsItsWholeName)
{
    service->site = u"jira.exemple.fr"_s;
    const TaskResult<void> started(store->startDemo());

    EXPECT_EQ(store->siteShortName(), u"jira.exemple.fr"_s);
}

TEST_F(AppStoreSessionTest, activationFetchesInItsOrder)
{
    const TaskResult<void> started(store->startDemo());
    EXPECT_EQ(service->projectsCalls.count(), 0);

    service->currentUserCalls[0].finish(sampleUser(u"u1"_s, u"Noam"_s));
    EXPECT_EQ(store->me(), sampleUser(u"u1"_s, u"Noam"_s));
    ASSERT_EQ(service->projectsCalls.count(), 1);
    ASSERT_EQ(service->prioritiesCalls.count(), 1) << "side by side with the projects";

    service->prioritiesCalls[0].finish({IssuePriority(u"1"_s, u"High"_s)});
    EXPECT_TRUE(store->priorities().isEmpty()) << "the projects come first";
    service->projectsCalls[0].finish({sampleProject(u"WEB"_s)});
    EXPECT_EQ(store->projects().size(), 1);
    EXPECT_EQ(store->priorities().size(), 1);

    ASSERT_EQ(service->issuesCalls.count(), 1);
    EXPECT_EQ(service->issuesCalls[0].argument(), IssueScope::myIssues());
    EXPECT_TRUE(store->isLoading());
    service->issuesCalls[0].finish({sampleIssue(u"WEB-1"_s)});
    EXPECT_EQ(keys(store->issues()), QStringList(u"WEB-1"_s));

    ASSERT_EQ(service->issuesCalls.count(), 2);
    EXPECT_FALSE(started.isDone());
    service->issuesCalls[1].finish({sampleIssue(u"WEB-1"_s), sampleIssue(u"WEB-2"_s)});
    EXPECT_EQ(store->myOpenCount(), 2);
    EXPECT_TRUE(started.isDone());
}

TEST_F(AppStoreSessionTest, aFailingCurrentUserSkipsProjectsAndShowsUntilALoadSucceeds)
{
    const TaskResult<void> started(store->startDemo());
    service->currentUserCalls[0].fail(Refused);

    EXPECT_FALSE(store->me());
    EXPECT_EQ(service->projectsCalls.count(), 0);
    EXPECT_EQ(service->prioritiesCalls.count(), 0);
    EXPECT_EQ(store->phase(), Phase::Ready);
    EXPECT_EQ(store->loadError(), Refused.message());

    service->issuesCalls[0].finish({});
    EXPECT_FALSE(store->loadError());
}

TEST_F(AppStoreSessionTest, aFailingCurrentUserStaysVisibleWhenTheLoadFailsToo)
{
    const JiraError later(JiraError::Http{503, u"Plus tard."_s});
    const TaskResult<void> started(store->startDemo());
    service->currentUserCalls[0].fail(Refused);
    service->issuesCalls[0].fail(later);
    service->issuesCalls[1].fail(later);

    EXPECT_TRUE(started.isDone());
    EXPECT_EQ(store->loadError(), later.message());
    EXPECT_EQ(store->phase(), Phase::Ready);
    EXPECT_FALSE(store->isLoading());
}

TEST_F(AppStoreSessionTest, failingProjectsCallOffThePrioritiesAndTheSessionGoesOn)
{
    const TaskResult<void> started(store->startDemo());
    service->currentUserCalls[0].finish(sampleUser(u"u1"_s, u"Noam"_s));
    EXPECT_FALSE(service->prioritiesCalls[0].wasStopped());
    service->projectsCalls[0].fail(Refused);

    EXPECT_TRUE(service->prioritiesCalls[0].wasStopped());
    EXPECT_FALSE(service->prioritiesCalls[0].isPending());
    EXPECT_TRUE(store->priorities().isEmpty());
    EXPECT_EQ(store->loadError(), Refused.message());
    EXPECT_EQ(service->issuesCalls.count(), 1);
}

TEST_F(AppStoreSessionTest, prioritiesThatCameBeforeTheProjectsFailedAreNotWritten)
{
    const TaskResult<void> started(store->startDemo());
    service->currentUserCalls[0].finish(sampleUser(u"u1"_s, u"Noam"_s));
    service->prioritiesCalls[0].finish({IssuePriority(u"1"_s, u"High"_s)});
    service->projectsCalls[0].fail(Refused);

    EXPECT_TRUE(store->priorities().isEmpty());
}

TEST_F(AppStoreSessionTest, failingPrioritiesAreSilentAndLeaveNone)
{
    const TaskResult<void> started(store->startDemo());
    service->currentUserCalls[0].finish(sampleUser(u"u1"_s, u"Noam"_s));
    service->projectsCalls[0].finish({sampleProject(u"WEB"_s)});
    service->prioritiesCalls[0].fail(Refused);

    EXPECT_FALSE(store->loadError());
    EXPECT_EQ(store->projects().size(), 1);
    EXPECT_TRUE(store->priorities().isEmpty());
    EXPECT_EQ(service->issuesCalls.count(), 1);
}

TEST_F(AppStoreSessionTest, startingADemoStoresTheChoiceAndForgetsTheSessionBefore)
{
    startSession();
    reloadWith({sampleIssue(u"WEB-1"_s)});
    store->setFilterText(u"web"_s);
    const TaskResult<void> again(store->startDemo());

    EXPECT_EQ(preferences.flag(u"demoMode"_s), true);
    EXPECT_EQ(demosMade, 2);
    EXPECT_TRUE(store->issues().isEmpty());
    EXPECT_TRUE(store->filterText().isEmpty());
}

TEST_F(AppStoreSessionTest, theDemoButtonStartsWithoutWaiting)
{
    store->openDemo();

    EXPECT_EQ(store->phase(), Phase::Ready);
    EXPECT_EQ(service->currentUserCalls.count(), 1);
}

TEST_F(AppStoreSessionTest, signingOutWipesTheSessionAndKeepsWhatIsTheUsers)
{
    startSession();
    service->projectsCalls.answerWith({sampleProject(u"WEB"_s)});
    reloadWith({sampleIssue(u"WEB-1"_s)});
    answerEverything();
    service->assignableUsersCalls.answerWith({sampleUser(u"u7"_s, u"Ada"_s)});
    const TaskResult<void> details(store->loadDetails(u"API-1"_s));
    store->select(IssueScope::recent());
    store->setFocusedKey(u"WEB-1"_s);
    store->setInspectorKey(u"WEB-1"_s);
    store->setFilterText(u"x"_s);
    store->toggleGroup(u"s:todo"_s);
    store->toggleFavorite(u"WEB"_s);
    store->toast(u"Reste"_s, u"star"_s);
    store->signOut();

    EXPECT_EQ(store->phase(), Phase::SignedOut);
    EXPECT_FALSE(store->isDemo());
    EXPECT_FALSE(store->me());
    EXPECT_TRUE(store->siteName().isEmpty());
    EXPECT_EQ(preferences.flag(u"demoMode"_s), false);
    EXPECT_EQ(store->scope(), IssueScope::myIssues());
    EXPECT_TRUE(store->issues().isEmpty() && store->details().isEmpty() &&
                store->comments().isEmpty());
    EXPECT_TRUE(store->transitions().isEmpty() && store->projectStatuses().isEmpty());
    EXPECT_TRUE(store->assignables().isEmpty() && store->projectDetails().isEmpty());
    EXPECT_TRUE(store->myOpenIssues().isEmpty() && store->projects().isEmpty());
    EXPECT_FALSE(store->focusedKey() || store->inspectorKey());
    EXPECT_TRUE(store->filterText().isEmpty());

    EXPECT_TRUE(store->knownUsers().contains(u"u7"_s));
    EXPECT_TRUE(store->collapsedGroups().contains(u"s:todo"_s));
    EXPECT_EQ(store->favoriteProjects(), QStringList(u"WEB"_s));
    EXPECT_EQ(store->toasts().size(), 1);
}

TEST_F(AppStoreSessionTest, cachedListsDoNotOutliveTheSession)
{
    startSession();
    answerEverything();
    service->issuesCalls.answerWith({sampleIssue(u"WEB-1"_s)});
    store->select(IssueScope::recent());
    ASSERT_EQ(store->issues().size(), 1);
    store->signOut();
    startSession();
    store->select(IssueScope::recent());

    EXPECT_TRUE(store->issues().isEmpty());
    EXPECT_TRUE(store->isLoading());
}

TEST_F(AppStoreSessionTest, signingOutWhileTheUserIsFetchedEndsTheActivation)
{
    const TaskResult<void> started(store->startDemo());
    store->signOut();
    service->currentUserCalls[0].finish(sampleUser(u"u1"_s, u"Noam"_s));

    EXPECT_TRUE(started.isDone());
    EXPECT_FALSE(store->me());
    EXPECT_EQ(service->projectsCalls.count() + service->prioritiesCalls.count(), 0);
    EXPECT_EQ(service->issuesCalls.count(), 0) << "without a session nothing is loaded";
    EXPECT_EQ(store->phase(), Phase::SignedOut);

    clock.advance(300s);
    EXPECT_EQ(service->issuesCalls.count(), 0) << "the timer's tick does nothing outside a session";
}

TEST_F(AppStoreSessionTest, signingOutInMidLoadDropsTheList)
{
    startSession();
    const TaskResult<void> reloaded(store->reload());
    store->signOut();
    EXPECT_FALSE(store->isLoading());
    service->issuesCalls.last().finish({sampleIssue(u"WEB-1"_s)});

    EXPECT_TRUE(reloaded.isDone());
    EXPECT_TRUE(store->issues().isEmpty());
    EXPECT_EQ(service->statusesCalls.count(), 0);
}

TEST_F(AppStoreSessionTest, signingOutStopsTheTimersOfTheSession)
{
    startSession();
    EXPECT_GT(clock.pending(), 0);
    store->signOut();

    EXPECT_EQ(clock.pending(), 0);
}

TEST_F(AppStoreSessionTest, openingASessionTellsObserversOfEachFieldOnce)
{
    const QSignalSpy phases(store.get(), &AppStore::phaseChanged);
    const QSignalSpy users(store.get(), &AppStore::meChanged);
    const QSignalSpy services(store.get(), &AppStore::sessionChanged);
    startSession();

    EXPECT_EQ(phases.count(), 1);
    EXPECT_EQ(users.count(), 1);
    EXPECT_EQ(services.count(), 1);
}

} // namespace
