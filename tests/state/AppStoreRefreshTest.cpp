#include "model/JiraError.h"
#include "state/AppStoreFixture.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const JiraError Refused(JiraError::Http{500, u"Panne."_s});

/// Requests other than for the visible list: the user's open issues, the timer and searches.
class AppStoreRefreshTest : public AppStoreFixture
{
protected:
    void SetUp() override { startSession(); }

    /// The most recent request for a list.
    auto &listCall() { return service->issuesCalls.last(); }
};

// The user's open issues ----------------------------------------------------------------------------------------------

TEST_F(AppStoreRefreshTest, theUsersOpenIssuesLeaveOutClosedOnesAndComeByUrgency)
{
    Issue urgent = sampleIssue(u"WEB-4"_s);
    urgent.priority = IssuePriority(u"1"_s, u"Highest"_s);
    const IssueList mine = {
        sampleIssue(u"WEB-1"_s, u"Backlog"_s), sampleIssue(u"WEB-2"_s, u"Terminé"_s),
        sampleIssue(u"WEB-3"_s, u"À faire"_s), urgent, sampleIssue(u"WEB-5"_s, u"En cours"_s)};
    const TaskResult<void> refreshed(store->refreshMyIssues());
    listCall().finish(mine);

    EXPECT_EQ(keys(store->myOpenIssues()),
              QStringList({u"WEB-5"_s, u"WEB-4"_s, u"WEB-3"_s, u"WEB-1"_s}));
    EXPECT_EQ(store->myOpenCount(), 4);
}

TEST_F(AppStoreRefreshTest, refreshingMyIssuesChangesTheCachedListAndNotTheOneOnScreen)
{
    reloadWith({sampleIssue(u"WEB-1"_s)});
    const TaskResult<void> refreshed(store->refreshMyIssues());
    listCall().finish({sampleIssue(u"WEB-2"_s)});
    EXPECT_EQ(keys(store->issues()), QStringList(u"WEB-1"_s));

    store->select(IssueScope::recent());
    store->select(IssueScope::myIssues());
    EXPECT_EQ(keys(store->issues()), QStringList(u"WEB-2"_s));
}

TEST_F(AppStoreRefreshTest, aFailedRefreshOfMyIssuesIsSilentAndKeepsThem)
{
    const TaskResult<void> refreshed(store->refreshMyIssues());
    listCall().finish({sampleIssue(u"WEB-1"_s)});
    const TaskResult<void> failed(store->refreshMyIssues());
    listCall().fail(Refused);

    EXPECT_EQ(store->myOpenCount(), 1);
    EXPECT_FALSE(store->loadError());
    EXPECT_TRUE(failed.isDone());
}

TEST_F(AppStoreRefreshTest, refreshingMyIssuesWithoutAServiceEndsAtOnce)
{
    store->signOut();
    const TaskResult<void> done(store->refreshMyIssues());

    EXPECT_TRUE(done.isDone());
}

// The timer -----------------------------------------------------------------------------------------------------------

TEST_F(AppStoreRefreshTest, theTimerReloadsEveryTwoMinutesAndThenTheUsersIssues)
{
    const int calls = service->issuesCalls.count();
    clock.advance(119s);
    EXPECT_EQ(service->issuesCalls.count(), calls);
    clock.advance(1s);
    ASSERT_EQ(service->issuesCalls.count(), calls + 1);
    EXPECT_TRUE(store->isLoading());

    listCall().finish({});
    ASSERT_EQ(service->issuesCalls.count(), calls + 2);
    EXPECT_FALSE(store->isLoading()) << "the second is for the user's open issues";
    listCall().finish({});

    clock.advance(120s);
    EXPECT_EQ(service->issuesCalls.count(), calls + 3);
}

TEST_F(AppStoreRefreshTest, theTimerDoesNothingWhileTheApplicationIsInTheBackground)
{
    const int calls = service->issuesCalls.count();
    desktop.isActive = false;
    clock.advance(600s);
    EXPECT_EQ(service->issuesCalls.count(), calls);

    desktop.isActive = true;
    clock.advance(120s);
    EXPECT_EQ(service->issuesCalls.count(), calls + 1);
}

TEST_F(AppStoreRefreshTest, theTimerDoesNothingWhenSignedOut)
{
    const int calls = service->issuesCalls.count();
    store->signOut();
    clock.advance(600s);

    EXPECT_EQ(service->issuesCalls.count(), calls);
}

TEST_F(AppStoreRefreshTest, aSecondSessionHasOneTimer)
{
    startSession();
    const int calls = service->issuesCalls.count();
    clock.advance(120s);

    EXPECT_EQ(service->issuesCalls.count(), calls + 1);
}

// Searching -----------------------------------------------------------------------------------------------------------

TEST_F(AppStoreRefreshTest, aSearchGivesWhatTheServiceFindsAndWritesNothing)
{
    const TaskResult<IssueList> found(store->searchRemote(u"accents"_s));
    EXPECT_EQ(service->searchCalls[0].argument(), u"accents"_s);
    service->searchCalls[0].finish({sampleIssue(u"WEB-7"_s)});

    EXPECT_EQ(keys(found.value()), QStringList(u"WEB-7"_s));
    EXPECT_TRUE(store->issues().isEmpty());
    EXPECT_FALSE(store->issue(u"WEB-7"_s));
}

TEST_F(AppStoreRefreshTest, aFailedCancelledOrServicelessSearchFindsNothing)
{
    const TaskResult<IssueList> failed(store->searchRemote(u"a"_s));
    service->searchCalls[0].fail(Refused);
    std::stop_source stop;
    const TaskResult<IssueList> stopped(store->searchRemote(u"b"_s, stop.get_token()));
    stop.request_stop();
    store->signOut();
    const TaskResult<IssueList> nobody(store->searchRemote(u"c"_s));

    EXPECT_TRUE(failed.value().isEmpty());
    EXPECT_TRUE(stopped.value().isEmpty());
    EXPECT_TRUE(service->searchCalls[1].wasStopped());
    EXPECT_TRUE(nobody.value().isEmpty());
    EXPECT_EQ(service->searchCalls.count(), 2);
}

// What the window shows about a list that could not be refreshed ------------------------------------------------------

TEST_F(AppStoreRefreshTest, aRefreshThatTheUserAskedForTellsItsFailureByAToast)
{
    reloadWith({sampleIssue(u"WEB-1"_s)});
    store->refresh();
    listCall().fail(Refused);

    ASSERT_EQ(store->toasts().size(), 1);
    EXPECT_EQ(store->toasts()[0].message, Refused.message());
    EXPECT_EQ(keys(store->issues()), QStringList(u"WEB-1"_s));
}

TEST_F(AppStoreRefreshTest, aRefreshThatNobodyAskedForFailsWithoutAToast)
{
    reloadWith({sampleIssue(u"WEB-1"_s)});
    clock.advance(120s);
    listCall().fail(Refused);
    store->select(IssueScope::recent());
    listCall().fail(Refused);

    EXPECT_TRUE(store->toasts().isEmpty());
}

TEST_F(AppStoreRefreshTest, anEmptyListTellsTheFailureOnItsScreenAlone)
{
    store->refresh();
    listCall().fail(Refused);

    EXPECT_TRUE(store->toasts().isEmpty());
    EXPECT_EQ(store->loadError(), Refused.message());
    EXPECT_TRUE(store->listAge().isEmpty());
}

TEST_F(AppStoreRefreshTest, aListThatCannotBeRefreshedSaysHowOldItIsUntilItCan)
{
    reloadWith({sampleIssue(u"WEB-1"_s)});
    EXPECT_TRUE(store->listAge().isEmpty());
    clock.advance(720s);
    for (int i = 0; i < service->issuesCalls.count(); ++i) {
        if (service->issuesCalls[i].isPending())
            service->issuesCalls[i].fail(Refused);
    }
    EXPECT_EQ(store->listAge(), u"il y a 12 min"_s);
    clock.advance(60s);
    EXPECT_EQ(store->listAge(), u"il y a 13 min"_s);

    reloadWith({sampleIssue(u"WEB-1"_s)});
    EXPECT_TRUE(store->listAge().isEmpty());
}

TEST_F(AppStoreRefreshTest, theAgeIsThatOfTheListOnTheScreen)
{
    reloadWith({sampleIssue(u"WEB-1"_s)});
    desktop.isActive = false;
    clock.advance(600s);
    store->select(IssueScope::recent());
    listCall().finish({sampleIssue(u"WEB-2"_s)});
    store->select(IssueScope::myIssues());
    listCall().fail(Refused);

    EXPECT_EQ(store->listAge(), u"il y a 10 min"_s);
}

TEST_F(AppStoreRefreshTest, aListThatTheSiteCutSaysSo)
{
    service->limit = 2;
    reloadWith({sampleIssue(u"WEB-1"_s)});
    EXPECT_TRUE(store->countHint().isEmpty());
    reloadWith({sampleIssue(u"WEB-1"_s), sampleIssue(u"WEB-2"_s)});
    EXPECT_EQ(store->countHint(), u"La liste s'arrête aux 2 premiers tickets."_s);
}

TEST_F(AppStoreRefreshTest, anIssueThatAnAnswerRepeatsIsListedOnce)
{
    reloadWith({sampleIssue(u"WEB-1"_s), sampleIssue(u"WEB-2"_s), sampleIssue(u"WEB-1"_s)});
    EXPECT_EQ(keys(store->issues()), QStringList({u"WEB-1"_s, u"WEB-2"_s}));
}

// Searches whose index is outdated ------------------------------------------------------------------------------------

TEST_F(AppStoreRefreshTest, anIssueJustCreatedStaysInItsListWhenASearchLacksIt)
{
    service->issueCalls.answerBy([](const QString &key) { return sampleIssue(key); });
    service->commentsCalls.answerWith({});
    service->transitionsCalls.answerWith({});
    service->createCalls.answerWith(u"WEB-9"_s);
    service->issuesCalls.answerWith({sampleIssue(u"WEB-1"_s)});
    store->select(IssueScope::project(u"WEB"_s, ProjectView::All));
    const TaskResult<std::optional<QString>> created(store->create(IssueDraft()));
    // The inspector fetches what it shows.
    const TaskResult<void> opened(store->loadDetails(u"WEB-9"_s));
    EXPECT_EQ(keys(store->issues()), QStringList({u"WEB-9"_s, u"WEB-1"_s}));

    const TaskResult<void> reloaded(store->reload());
    EXPECT_EQ(keys(store->issues()), QStringList({u"WEB-9"_s, u"WEB-1"_s}));

    desktop.isActive = false;
    clock.advance(OpenEdits::SearchLag);
    const TaskResult<void> later(store->reload());
    EXPECT_EQ(keys(store->issues()), QStringList(u"WEB-1"_s)) << "for a bounded time";
}

TEST_F(AppStoreRefreshTest, anIssueCreatedElsewhereIsNotPutIntoTheList)
{
    service->issueCalls.answerBy([](const QString &key) { return sampleIssue(key); });
    service->commentsCalls.answerWith({});
    service->transitionsCalls.answerWith({});
    service->createCalls.answerWith(u"SUP-9"_s);
    service->issuesCalls.answerWith({sampleIssue(u"WEB-1"_s)});
    store->select(IssueScope::project(u"WEB"_s, ProjectView::All));
    const TaskResult<std::optional<QString>> created(store->create(IssueDraft()));
    const TaskResult<void> opened(store->loadDetails(u"SUP-9"_s));

    EXPECT_EQ(keys(store->issues()), QStringList(u"WEB-1"_s));
}

} // namespace
