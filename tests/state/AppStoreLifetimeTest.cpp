#include "async/WhileAlive.h"
#include "model/JiraError.h"
#include "state/AppStoreFixture.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const JiraError Refused(JiraError::Http{500, u"Panne."_s});

/// The store is destroyed while its requests are pending, and responses that arrive later must not access it. The
/// address sanitizer detects such an access. The checks here ensure that the requests were pending and that each task
/// has ended.
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

TEST_F(AppStoreLifetimeTest, goneWhileEditsAreSent)
{
    startSession();
    reloadWith({sampleIssue(u"WEB-1"_s)});
    store->rename(u"WEB-1"_s, u"Autre"_s);
    store->setPriority(IssuePriority(u"1"_s, u"High"_s), {u"WEB-1"_s});
    store->toggleLabel(u"ios"_s, {u"WEB-1"_s});
    store->setDescription(u"Texte"_s, u"WEB-1"_s);
    store->setDueDate(QDate(2026, 11, 2), u"WEB-1"_s);
    store->assign({u"WEB-1"_s}, std::nullopt);
    store->assign({u"WEB-1"_s}, sampleUser(u"u2"_s, u"Maud"_s));
    ASSERT_EQ(service->updateCalls.count(), 5);
    ASSERT_EQ(service->assignCalls.count(), 1);
    store.reset();
    service->updateCalls[0].finish();
    for (int i = 1; i < 5; ++i)
        service->updateCalls[i].fail(Refused);
    service->assignCalls[0].fail(Refused);
}

TEST_F(AppStoreLifetimeTest, goneAtEachStageOfATransition)
{
    const IssueStatus doing(u"2"_s, u"En cours"_s, u"indeterminate"_s);
    const QList<WorkflowTransition> offered{{u"t"_s, u"Commencer"_s, doing}};
    startSession();
    reloadWith({sampleIssue(u"WEB-1"_s), sampleIssue(u"WEB-2"_s), sampleIssue(u"WEB-3"_s)});
    const int first = service->transitionsCalls.count();
    store->setStatus(doing, {u"WEB-1"_s, u"WEB-2"_s, u"WEB-3"_s});
    service->transitionsCalls[first + 1].finish(offered);
    service->transitionsCalls[first + 2].finish(offered);
    service->performCalls[1].finish();
    store.reset();
    service->transitionsCalls[first].fail(Refused);
    service->performCalls[0].fail(Refused);
    ASSERT_EQ(service->transitionsCalls.count(), first + 4);
    service->transitionsCalls[first + 3].finish(offered);
}

TEST_F(AppStoreLifetimeTest, goneWhileACommentACreationOrAUserSearchIsUnderWay)
{
    startSession();
    const TaskResult<bool> posted(
        store->addComment(u"Bonjour"_s, u"WEB-1"_s, CommentAudience::Everyone, {}));
    const TaskResult<std::optional<QString>> created(store->create({}));
    const TaskResult<std::optional<QString>> listing(store->create({}));
    const TaskResult<QList<JiraUser>> found(store->searchUsers(u"ma"_s));
    service->createCalls[1].finish(u"WEB-9"_s);
    store.reset();
    service->addCommentCalls[0].fail(Refused);
    service->createCalls[0].finish(u"WEB-8"_s);
    service->issuesCalls.last().finish({});
    service->searchUsersCalls[0].finish({sampleUser(u"u2"_s, u"Maud"_s)});

    EXPECT_THROW(posted.value(), OwnerGone);
    EXPECT_THROW(created.value(), OwnerGone);
    EXPECT_THROW(listing.value(), OwnerGone);
    EXPECT_THROW(found.value(), OwnerGone);
}

} // namespace
