#include "async/WhileAlive.h"
#include "model/JiraError.h"
#include "state/AppStoreFixture.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const JiraError Refused(JiraError::Http{500, u"Panne."_s});

/// The store goes away while its calls are in flight; what arrives later must find nobody and touch nothing. The address
/// sanitizer is the judge; the checks here see that the calls were in flight and that each task has ended.
class AppStoreLifetimeTest : public AppStoreFixture
{
protected:
    static bool endedForNobody(const TaskResult<void> &task)
    {
        try {
            task.value();
        } catch (const OwnerGone &) {
            return true;
        }
        return false;
    }
};

TEST_F(AppStoreLifetimeTest, goneWhileTheUserIsFetched)
{
    const TaskResult<void> started(store->startDemo());
    store.reset();
    service->currentUserCalls[0].finish(sampleUser(u"u1"_s, u"Noam"_s));

    EXPECT_TRUE(endedForNobody(started));
    EXPECT_EQ(service->projectsCalls.count(), 0);
}

TEST_F(AppStoreLifetimeTest, goneWhileProjectsAndPrioritiesAreFetched)
{
    const TaskResult<void> started(store->startDemo());
    service->currentUserCalls[0].finish(sampleUser(u"u1"_s, u"Noam"_s));
    store.reset();
    service->projectsCalls[0].finish({sampleProject(u"WEB"_s)});
    EXPECT_TRUE(endedForNobody(started));
    service->prioritiesCalls[0].finish({});
}

TEST_F(AppStoreLifetimeTest, goneWhileProjectsAreAboutToFail)
{
    const TaskResult<void> started(store->startDemo());
    service->currentUserCalls[0].finish(sampleUser(u"u1"_s, u"Noam"_s));
    store.reset();
    service->projectsCalls[0].fail(Refused);

    EXPECT_TRUE(endedForNobody(started));
}

TEST_F(AppStoreLifetimeTest, goneWhileTheListIsFetchedInEachPlaceThatAsksForIt)
{
    startSession();
    const TaskResult<void> reloaded(store->reload());
    store->select(IssueScope::recent());
    const TaskResult<void> mine(store->refreshMyIssues());
    clock.advance(120s);
    const int calls = service->issuesCalls.count();
    store.reset();
    for (int i = 0; i < calls; ++i) {
        if (service->issuesCalls[i].isPending())
            service->issuesCalls[i].finish({sampleIssue(u"WEB-1"_s)});
    }

    EXPECT_TRUE(endedForNobody(reloaded));
    EXPECT_TRUE(endedForNobody(mine));
    EXPECT_EQ(service->issuesCalls.count(), calls);
    EXPECT_EQ(service->statusesCalls.count(), 0);
}

TEST_F(AppStoreLifetimeTest, goneWhileAnIssueIsFetched)
{
    startSession();
    const int before = service->issueCalls.count();
    const TaskResult<void> succeeding(store->loadDetails(u"WEB-1"_s));
    const TaskResult<void> failing(store->loadDetails(u"WEB-2"_s));
    store.reset();
    service->issueCalls[before].finish(sampleIssue(u"WEB-1"_s));
    service->issueCalls[before + 1].fail(Refused);
    service->commentsCalls.cancelPending();

    EXPECT_TRUE(endedForNobody(succeeding));
    EXPECT_TRUE(endedForNobody(failing));
}

TEST_F(AppStoreLifetimeTest, goneWhileCommentsMetadataOrTransitionsAreFetched)
{
    startSession();
    const TaskResult<void> comments(store->loadDetails(u"WEB-1"_s));
    service->issueCalls.last().finish(sampleIssue(u"WEB-1"_s));
    auto &commentsCall = service->commentsCalls.last();

    const TaskResult<void> metadata(store->loadDetails(u"API-1"_s));
    service->issueCalls.last().finish(sampleIssue(u"API-1"_s));
    service->commentsCalls.last().finish({});
    ASSERT_EQ(service->statusesCalls.count(), 1);

    answerEverything();
    service->transitionsCalls.hold();
    const TaskResult<void> transitions(store->loadDetails(u"OPS-1"_s));
    ASSERT_EQ(service->transitionsCalls.count(), 1);

    store.reset();
    commentsCall.finish({});
    service->statusesCalls[0].finish({});
    service->assignableUsersCalls[0].finish({});
    service->projectCalls[0].finish(sampleProject(u"API"_s));
    service->transitionsCalls[0].finish({});

    EXPECT_TRUE(endedForNobody(comments));
    EXPECT_TRUE(endedForNobody(metadata));
    EXPECT_TRUE(endedForNobody(transitions));
}

TEST_F(AppStoreLifetimeTest, goneWhileASearchRuns)
{
    startSession();
    const TaskResult<IssueList> found(store->searchRemote(u"accents"_s));
    store.reset();
    service->searchCalls[0].finish({});

    EXPECT_THROW(found.value(), OwnerGone);
}

TEST_F(AppStoreLifetimeTest, goneWithTimersRunning)
{
    startSession();
    store->toast(u"Reste"_s, u"star"_s);
    store.reset();

    EXPECT_EQ(clock.pending(), 0);
    clock.advance(600s);
}

TEST_F(AppStoreLifetimeTest, theServiceOutlivesTheCallsThatRunOnIt)
{
    startSession();
    const std::weak_ptr<ScriptedService> watched = service;
    auto *raw = service.get();
    const TaskResult<void> opened(store->loadDetails(u"WEB-1"_s));
    service = std::make_shared<ScriptedService>();
    store.reset();
    ASSERT_FALSE(watched.expired()) << "two calls still run on it";

    raw->issueCalls.last().finish(sampleIssue(u"WEB-1"_s));
    ASSERT_FALSE(watched.expired()) << "the comments still run on it";
    const auto last = watched.lock();
    last->commentsCalls.last().finish({});
}

} // namespace
