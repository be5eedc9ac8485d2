#include "model/JiraError.h"
#include "state/AppStoreFixture.h"

using namespace Qt::StringLiterals;

namespace {

const JiraError Refused(JiraError::Http{404, u"Le ticket n'existe plus."_s});
const auto Key = u"WEB-1"_s;

class AppStoreDetailsTest : public AppStoreFixture
{
protected:
    void SetUp() override { startSession(); }

    TaskResult<void> openIssue() { return TaskResult<void>(store->loadDetails(Key)); }
    void openToTheEnd()
    {
        answerEverything();
        EXPECT_TRUE(openIssue().isDone());
        holdEverything();
    }
};

TEST_F(AppStoreDetailsTest, theIssueAndItsCommentsAreFetchedSideBySideThenTheRest)
{
    const auto opened = openIssue();
    ASSERT_EQ(service->issueCalls.last().argument(), Key);
    ASSERT_EQ(service->commentsCalls.last().argument(), Key);

    service->issueCalls.last().finish(sampleIssue(Key));
    EXPECT_TRUE(store->details().contains(Key)) << "shown before the comments are there";
    EXPECT_EQ(service->statusesCalls.count(), 0);

    service->commentsCalls.last().finish({Comment{.id = u"c1"_s}});
    EXPECT_EQ(store->comments().value(Key).size(), 1);
    ASSERT_EQ(service->statusesCalls.count(), 1);
    EXPECT_EQ(service->transitionsCalls.count(), 0);

    service->statusesCalls[0].finish({});
    service->assignableUsersCalls[0].finish({});
    service->projectCalls[0].finish(sampleProject(u"WEB"_s));
    ASSERT_EQ(service->transitionsCalls.count(), 1);
    service->transitionsCalls[0].finish({WorkflowTransition{.id = u"t1"_s}});

    EXPECT_EQ(store->transitions().value(Key).size(), 1);
    EXPECT_TRUE(opened.isDone());
}

TEST_F(AppStoreDetailsTest, commentsThatComeFirstWaitForTheirIssue)
{
    const auto opened = openIssue();
    service->commentsCalls.last().finish({Comment{.id = u"c1"_s}});
    EXPECT_FALSE(store->comments().contains(Key));

    service->issueCalls.last().finish(sampleIssue(Key));
    EXPECT_TRUE(store->comments().contains(Key));
}

TEST_F(AppStoreDetailsTest, theListTakesTheFullRecordButKeepsItsActivity)
{
    Issue listed = sampleIssue(Key);
    listed.activity = {ActivityEvent{.date = clock.now()}};
    reloadWith({sampleIssue(u"WEB-0"_s), listed});
    Issue full = sampleIssue(Key, u"Terminé"_s);
    full.hasDetails = true;
    const auto opened = openIssue();
    service->issueCalls.last().finish(full);

    const Issue row = *store->issues()[1];
    EXPECT_EQ(row.status, full.status);
    EXPECT_TRUE(row.hasDetails);
    EXPECT_EQ(row.activity, listed.activity);
    EXPECT_EQ(keys(store->issues()), QStringList({u"WEB-0"_s, Key}));
}

TEST_F(AppStoreDetailsTest, anIssueOutsideTheListIsNotAddedToIt)
{
    openToTheEnd();

    EXPECT_TRUE(store->issues().isEmpty());
    EXPECT_TRUE(store->issue(Key));
}

TEST_F(AppStoreDetailsTest, aDeletedIssueThatWasNeverOpenedShowsItsError)
{
    const auto opened = openIssue();
    service->issueCalls.last().fail(Refused);

    EXPECT_EQ(store->detailErrors().value(Key), Refused.message());
    EXPECT_FALSE(store->details().contains(Key));
    EXPECT_TRUE(service->commentsCalls.last().wasStopped());
    EXPECT_FALSE(store->comments().contains(Key));
    EXPECT_EQ(service->transitionsCalls.count(), 0);
    EXPECT_TRUE(opened.isDone());
}

TEST_F(AppStoreDetailsTest, aDeletedIssueThatWasOpenedBeforeStaysWithoutAWord)
{
    openToTheEnd();
    const auto again = openIssue();
    service->issueCalls.last().fail(Refused);

    EXPECT_TRUE(store->details().contains(Key));
    EXPECT_TRUE(store->detailErrors().isEmpty());
}

TEST_F(AppStoreDetailsTest, aCancelledFetchLeavesNoError)
{
    const auto opened = openIssue();
    service->issueCalls.last().cancel();

    EXPECT_TRUE(store->detailErrors().isEmpty());
    EXPECT_TRUE(opened.isDone());
}

TEST_F(AppStoreDetailsTest, aStopEndsAllThatIsUnderWayAndWritesNothing)
{
    std::stop_source stop;
    const TaskResult<void> opened(store->loadDetails(Key, stop.get_token()));
    service->issueCalls.last().finish(sampleIssue(Key));
    stop.request_stop();

    EXPECT_TRUE(opened.isDone());
    EXPECT_TRUE(service->commentsCalls.last().wasStopped());
    EXPECT_FALSE(store->comments().contains(Key));
    EXPECT_EQ(service->transitionsCalls.count(), 0);
    EXPECT_TRUE(store->detailErrors().isEmpty());
}

TEST_F(AppStoreDetailsTest, aSuccessTakesTheErrorAway)
{
    const auto failed = openIssue();
    service->issueCalls.last().fail(Refused);
    const auto opened = openIssue();
    service->issueCalls.last().finish(sampleIssue(Key));

    EXPECT_TRUE(store->detailErrors().isEmpty());
}

TEST_F(AppStoreDetailsTest, failedCommentsGiveAnEmptyListWhereNothingWasKnown)
{
    const auto opened = openIssue();
    service->issueCalls.last().finish(sampleIssue(Key));
    service->commentsCalls.last().fail(Refused);

    ASSERT_TRUE(store->comments().contains(Key));
    EXPECT_TRUE(store->comments().value(Key).isEmpty());
    EXPECT_TRUE(store->details().contains(Key));
    EXPECT_EQ(service->statusesCalls.count(), 1) << "the rest goes on";
}

TEST_F(AppStoreDetailsTest, failedCommentsKeepTheOnesKnownBefore)
{
    const auto first = openIssue();
    service->issueCalls.last().finish(sampleIssue(Key));
    service->commentsCalls.last().finish({Comment{.id = u"c1"_s}});
    const auto second = openIssue();
    service->issueCalls.last().finish(sampleIssue(Key));
    service->commentsCalls.last().fail(Refused);

    EXPECT_EQ(store->comments().value(Key).size(), 1);
}

TEST_F(AppStoreDetailsTest, failedTransitionsWriteNothing)
{
    answerEverything();
    service->transitionsCalls.answerWith({WorkflowTransition{.id = u"t1"_s}});
    const auto first = openIssue();
    service->transitionsCalls.failWith(Refused);
    const auto second = openIssue();

    EXPECT_TRUE(second.isDone());
    EXPECT_EQ(store->transitions().value(Key).size(), 1);
}

TEST_F(AppStoreDetailsTest, withoutAServiceNothingIsAsked)
{
    store->signOut();
    EXPECT_TRUE(openIssue().isDone());
    EXPECT_TRUE(TaskResult<void>(store->loadProjectMeta(u"WEB"_s)).isDone());

    EXPECT_EQ(service->issueCalls.count(), 0);
    EXPECT_EQ(service->statusesCalls.count(), 0);
}

TEST_F(AppStoreDetailsTest, aResultAfterTheSignOutIsDropped)
{
    const auto opened = openIssue();
    store->signOut();
    service->issueCalls.last().finish(sampleIssue(Key));
    service->commentsCalls.last().finish({});

    EXPECT_FALSE(store->details().contains(Key));
    EXPECT_FALSE(store->comments().contains(Key));
    EXPECT_EQ(store->phase(), AppStore::Phase::SignedOut);
}

// Metadata ------------------------------------------------------------------------------------------------------------

TEST_F(AppStoreDetailsTest, metadataIsFetchedOncePerSessionAndTheCallersShareIt)
{
    const TaskResult<void> first(store->loadProjectMeta(u"WEB"_s));
    const TaskResult<void> second(store->loadProjectMeta(u"WEB"_s));
    EXPECT_FALSE(first.isDone());
    EXPECT_TRUE(second.isDone());
    EXPECT_EQ(service->statusesCalls.count(), 1);
    EXPECT_EQ(service->assignableUsersCalls.count(), 1);
    EXPECT_EQ(service->projectCalls.count(), 1);

    startSession();
    const TaskResult<void> nextSession(store->loadProjectMeta(u"WEB"_s));
    EXPECT_EQ(service->statusesCalls.count(), 2);
}

TEST_F(AppStoreDetailsTest, metadataFillsItsThreeMapsAndTheKnownUsers)
{
    const TaskResult<void> loaded(store->loadProjectMeta(u"WEB"_s));
    service->projectCalls[0].finish(sampleProject(u"WEB"_s));
    service->assignableUsersCalls[0].finish({sampleUser(u"u7"_s, u"Ada"_s)});
    service->statusesCalls[0].finish({IssueStatus::guessed(u"En cours"_s)});

    EXPECT_TRUE(loaded.isDone());
    EXPECT_EQ(store->projectStatuses().value(u"WEB"_s).size(), 1);
    EXPECT_EQ(store->assignables().value(u"WEB"_s).size(), 1);
    EXPECT_EQ(store->projectDetails().value(u"WEB"_s), sampleProject(u"WEB"_s));
    EXPECT_EQ(store->knownUsers().value(u"u7"_s).name, u"Ada"_s);
}

TEST_F(AppStoreDetailsTest, eachFailureOfMetadataStandsAlone)
{
    const TaskResult<void> loaded(store->loadProjectMeta(u"WEB"_s));
    service->statusesCalls[0].fail(Refused);
    service->assignableUsersCalls[0].finish({sampleUser(u"u7"_s, u"Ada"_s)});
    service->projectCalls[0].fail(Refused);

    EXPECT_TRUE(loaded.isDone());
    EXPECT_FALSE(store->projectStatuses().contains(u"WEB"_s));
    EXPECT_TRUE(store->assignables().contains(u"WEB"_s));
    EXPECT_FALSE(store->projectDetails().contains(u"WEB"_s));
    EXPECT_FALSE(store->loadError());
}

TEST_F(AppStoreDetailsTest, aProjectWhoseMetadataFailedStaysWithoutUntilTheNextSession)
{
    answerEverything();
    service->statusesCalls.failWith(Refused);
    service->assignableUsersCalls.failWith(Refused);
    service->projectCalls.failWith(Refused);
    service->issuesCalls.answerWith({sampleIssue(Key)});
    const TaskResult<void> first(store->reload());
    const TaskResult<void> second(store->reload());
    EXPECT_EQ(service->statusesCalls.count(), 1);
    EXPECT_TRUE(store->projectStatuses().isEmpty());

    service->statusesCalls.answerWith({IssueStatus::guessed(u"En cours"_s)});
    const TaskResult<void> third(store->reload());
    EXPECT_TRUE(store->projectStatuses().isEmpty());

    const TaskResult<void> nextSession(store->startDemo());
    EXPECT_EQ(store->projectStatuses().value(u"WEB"_s).size(), 1);
}

// Lookups -------------------------------------------------------------------------------------------------------------

TEST_F(AppStoreDetailsTest, anIssueIsLookedUpInDetailsThenInTheListThenAmongMyIssues)
{
    answerEverything();
    service->issuesCalls.answerWith({sampleIssue(Key, u"En cours"_s), sampleIssue(u"WEB-2"_s)});
    const TaskResult<void> mine(store->refreshMyIssues());
    holdEverything();
    EXPECT_EQ((*store->issue(Key))->status.name(), u"En cours"_s);

    reloadWith({sampleIssue(Key, u"À faire"_s)});
    EXPECT_EQ((*store->issue(Key))->status.name(), u"À faire"_s);
    EXPECT_EQ((*store->issue(u"WEB-2"_s))->key, u"WEB-2"_s);

    answerEverything();
    store->select(IssueScope::recent());
    service->issueCalls.answerWith(sampleIssue(Key, u"Terminé"_s));
    const auto opened = openIssue();
    EXPECT_EQ((*store->issue(Key))->status.name(), u"Terminé"_s);
    EXPECT_FALSE(store->issue(u"NONE-1"_s));
}

TEST_F(AppStoreDetailsTest, aProjectIsLookedUpInItsDetailsThenInTheList)
{
    answerEverything();
    service->projectsCalls.answerWith({sampleProject(u"WEB"_s), sampleProject(u"API"_s)});
    Project detailed = sampleProject(u"WEB"_s);
    detailed.issueTypes = {IssueType{.id = u"1"_s}};
    service->projectCalls.answerWith(detailed);
    const TaskResult<void> started(store->startDemo());
    const TaskResult<void> meta(store->loadProjectMeta(u"WEB"_s));

    EXPECT_EQ(store->project(u"WEB"_s), detailed);
    EXPECT_EQ(store->project(u"API"_s), sampleProject(u"API"_s));
    EXPECT_FALSE(store->project(u"NONE"_s));
}

} // namespace
