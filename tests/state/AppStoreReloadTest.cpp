#include "model/JiraError.h"
#include "state/AppStoreFixture.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

const JiraError Refused(JiraError::Http{500, u"Panne."_s});

IssueScope recapOf(int offset, bool teamWide)
{
    ActivityPeriod period;
    period.offset = offset;
    period.teamWide = teamWide;
    return IssueScope::activity(period);
}

class AppStoreReloadTest : public AppStoreFixture
{
protected:
    void SetUp() override { startSession(); }

    /// The most recent request for the list.
    auto &listCall() { return service->issuesCalls.last(); }
};

// Selecting -----------------------------------------------------------------------------------------------------------

TEST_F(AppStoreReloadTest, selectingThePresentScopeChangesNothing)
{
    reloadWith({sampleIssue(u"WEB-1"_s)});
    store->setFocusedKey(u"WEB-1"_s);
    store->setChecked({u"WEB-1"_s});
    const int calls = service->issuesCalls.count();
    store->select(IssueScope::myIssues());

    EXPECT_EQ(service->issuesCalls.count(), calls);
    EXPECT_EQ(store->focusedKey(), u"WEB-1"_s);
    EXPECT_EQ(store->checked().size(), 1);
    EXPECT_FALSE(store->isLoading());
}

TEST_F(AppStoreReloadTest, aScopeSelectedForTheFirstTimeShowsAnEmptyListWhileLoading)
{
    reloadWith({sampleIssue(u"WEB-1"_s)});
    store->select(IssueScope::recent());

    EXPECT_TRUE(store->issues().isEmpty());
    EXPECT_TRUE(store->isLoading());
    EXPECT_EQ(listCall().argument(), IssueScope::recent());
}

TEST_F(AppStoreReloadTest, aScopeVisitedBeforeShowsItsLastListWhileLoading)
{
    reloadWith({sampleIssue(u"WEB-1"_s)});
    store->select(IssueScope::recent());
    store->select(IssueScope::myIssues());

    EXPECT_EQ(keys(store->issues()), QStringList(u"WEB-1"_s));
    EXPECT_TRUE(store->isLoading());
}

TEST_F(AppStoreReloadTest, theViewsOfOneProjectAreCachedApart)
{
    store->select(IssueScope::project(u"WEB"_s, ProjectView::All));
    listCall().finish({sampleIssue(u"WEB-1"_s)});
    store->select(IssueScope::project(u"WEB"_s, ProjectView::Active));

    EXPECT_TRUE(store->issues().isEmpty());
}

TEST_F(AppStoreReloadTest, selectingClearsFocusChecksAndErrorButKeepsInspectorAndFilters)
{
    reloadWith({sampleIssue(u"WEB-1"_s)});
    store->setFocusedKey(u"WEB-1"_s);
    store->setChecked({u"WEB-1"_s});
    store->setInspectorKey(u"WEB-1"_s);
    store->setFilterText(u"web"_s);
    IssueFilters filters;
    filters.labels = {u"ui"_s};
    store->setFilters(filters);
    const TaskResult<void> failed(store->reload());
    listCall().fail(Refused);
    ASSERT_TRUE(store->loadError());
    store->select(IssueScope::recent());

    EXPECT_FALSE(store->focusedKey());
    EXPECT_TRUE(store->checked().isEmpty());
    EXPECT_FALSE(store->loadError());
    EXPECT_EQ(store->inspectorKey(), u"WEB-1"_s);
    EXPECT_EQ(store->filterText(), u"web"_s);
    EXPECT_EQ(store->filters(), filters);
}

TEST_F(AppStoreReloadTest, theSidebarRowOfTheRecapStaysSelectedWhateverTheTeamSwitchSays)
{
    store->select(recapOf(-1, true));

    EXPECT_EQ(store->scope(), recapOf(-1, true));
    EXPECT_EQ(store->sidebarSelection(), recapOf(-1, false));
}

TEST_F(AppStoreReloadTest, aRecapPickedInTheSidebarTakesTheStoredTeamSwitch)
{
    store->setActivityTeamWide(true);
    store->setSidebarSelection(recapOf(-1, false));
    EXPECT_EQ(store->scope(), recapOf(-1, true));

    store->setActivityTeamWide(false);
    store->selectInSidebar(recapOf(0, true));
    EXPECT_EQ(store->scope(), recapOf(0, false));
}

TEST_F(AppStoreReloadTest, anAbsentSidebarSelectionIsIgnored)
{
    store->select(IssueScope::recent());
    const int calls = service->issuesCalls.count();
    store->setSidebarSelection(std::nullopt);

    EXPECT_EQ(store->scope(), IssueScope::recent());
    EXPECT_EQ(service->issuesCalls.count(), calls);
}

TEST_F(AppStoreReloadTest, anotherSidebarRowIsSelectedAsItStands)
{
    store->setSidebarSelection(IssueScope::project(u"WEB"_s, ProjectView::Backlog));

    EXPECT_EQ(store->scope(), IssueScope::project(u"WEB"_s, ProjectView::Backlog));
    EXPECT_EQ(store->sidebarSelection(), store->scope());
}

// Reloading -----------------------------------------------------------------------------------------------------------

TEST_F(AppStoreReloadTest, reloadingWithoutAServiceEndsAtOnce)
{
    store->signOut();
    const int calls = service->issuesCalls.count();
    const TaskResult<void> done(store->reload());

    EXPECT_TRUE(done.isDone());
    EXPECT_EQ(service->issuesCalls.count(), calls);
    EXPECT_FALSE(store->isLoading());
}

TEST_F(AppStoreReloadTest, theFirstOfTwoReloadsIsDroppedWhenItArrivesLast)
{
    const TaskResult<void> first(store->reload());
    auto &firstCall = listCall();
    const TaskResult<void> second(store->reload());
    listCall().finish({sampleIssue(u"NEW-1"_s)});
    firstCall.finish({sampleIssue(u"OLD-1"_s)});

    EXPECT_EQ(keys(store->issues()), QStringList(u"NEW-1"_s));
    EXPECT_FALSE(store->isLoading());
}

TEST_F(AppStoreReloadTest, theFirstOfTwoReloadsIsDroppedEvenIfItArrivesFirst)
{
    const TaskResult<void> first(store->reload());
    auto &firstCall = listCall();
    const TaskResult<void> second(store->reload());
    firstCall.finish({sampleIssue(u"OLD-1"_s)});

    EXPECT_TRUE(first.isDone());
    EXPECT_TRUE(store->issues().isEmpty());
    EXPECT_TRUE(store->isLoading()) << "the newer one still runs";

    listCall().finish({sampleIssue(u"NEW-1"_s)});
    EXPECT_EQ(keys(store->issues()), QStringList(u"NEW-1"_s));
    EXPECT_FALSE(store->isLoading());
}

TEST_F(AppStoreReloadTest, aListOvertakenByASelectionIsNotCachedEither)
{
    const TaskResult<void> first(store->reload());
    auto &firstCall = listCall();
    store->select(IssueScope::recent());
    firstCall.finish({sampleIssue(u"OLD-1"_s)});
    listCall().finish({});
    store->select(IssueScope::myIssues());

    EXPECT_TRUE(store->issues().isEmpty());
}

TEST_F(AppStoreReloadTest, aStaleFailureSetsNoError)
{
    const TaskResult<void> first(store->reload());
    auto &firstCall = listCall();
    const TaskResult<void> second(store->reload());
    firstCall.fail(Refused);
    EXPECT_FALSE(store->loadError());
    EXPECT_TRUE(store->isLoading());

    listCall().finish({});
    EXPECT_FALSE(store->loadError());
}

TEST_F(AppStoreReloadTest, aFailureOnACachedScopeKeepsTheListAndShowsTheErrorBesideIt)
{
    reloadWith({sampleIssue(u"WEB-1"_s)});
    store->setChecked({u"WEB-1"_s});
    const TaskResult<void> failed(store->reload());
    listCall().fail(Refused);

    EXPECT_EQ(keys(store->issues()), QStringList(u"WEB-1"_s));
    EXPECT_EQ(store->loadError(), Refused.message());
    EXPECT_EQ(store->checked().size(), 1);
    EXPECT_FALSE(store->isLoading());
}

TEST_F(AppStoreReloadTest, aSuccessClearsTheErrorOfTheLoadBefore)
{
    const TaskResult<void> failed(store->reload());
    listCall().fail(Refused);
    const TaskResult<void> loaded(store->reload());
    EXPECT_TRUE(store->loadError()) << "until the answer is there";
    listCall().finish({});

    EXPECT_FALSE(store->loadError());
}

TEST_F(AppStoreReloadTest, aCancelledReloadIsNotReported)
{
    const TaskResult<void> cancelled(store->reload());
    listCall().cancel();

    EXPECT_FALSE(store->loadError());
    EXPECT_FALSE(store->isLoading());
    EXPECT_TRUE(cancelled.isDone());
}

TEST_F(AppStoreReloadTest, checkedLosesTheKeysThatAreGoneAndKeepsTheOthers)
{
    reloadWith({sampleIssue(u"WEB-1"_s), sampleIssue(u"WEB-2"_s), sampleIssue(u"WEB-3"_s)});
    store->setChecked({u"WEB-1"_s, u"WEB-3"_s});
    reloadWith({sampleIssue(u"WEB-3"_s), sampleIssue(u"WEB-4"_s)});

    EXPECT_EQ(store->checked(), QSet<QString>{u"WEB-3"_s});
}

TEST_F(AppStoreReloadTest, anEqualListNotifiesNobody)
{
    reloadWith({sampleIssue(u"WEB-1"_s)});
    const QSignalSpy issues(store.get(), &AppStore::issuesChanged);
    const QSignalSpy rows(store->issueList(), &IssueListModel::updated);
    reloadWith({sampleIssue(u"WEB-1"_s)});

    EXPECT_EQ(issues.count(), 0);
    EXPECT_EQ(rows.count(), 0);
}

TEST_F(AppStoreReloadTest, theButtonReloadsWithoutWaiting)
{
    const int calls = service->issuesCalls.count();
    store->refresh();

    EXPECT_EQ(service->issuesCalls.count(), calls + 1);
}

// Details and metadata during a reload --------------------------------------------------------------------------------

TEST_F(AppStoreReloadTest, anOpenedIssueTakesWhatTheListBringsAndKeepsWhatOnlyADetailFetchKnows)
{
    Issue full = sampleIssue(u"WEB-1"_s);
    full.hasDetails = true;
    full.description = ADFNode{.type = u"doc"_s};
    full.attachments = {Attachment{.id = u"a1"_s}};
    full.subtasks = {IssueRef{.key = u"WEB-9"_s}};
    answerEverything();
    service->issueCalls.answerWith(full);
    const TaskResult<void> opened(store->loadDetails(u"WEB-1"_s));

    Issue listed = sampleIssue(u"WEB-1"_s, u"Terminé"_s);
    listed.activity = {ActivityEvent{.date = clock.now()}};
    reloadWith({listed, sampleIssue(u"WEB-2"_s)});

    const Issue merged = *store->details().value(u"WEB-1"_s);
    EXPECT_EQ(merged.status, listed.status);
    EXPECT_EQ(merged.activity, listed.activity);
    EXPECT_TRUE(merged.hasDetails);
    EXPECT_EQ(merged.description, full.description);
    EXPECT_EQ(merged.attachments, full.attachments);
    EXPECT_EQ(merged.subtasks, full.subtasks);
    EXPECT_FALSE(store->details().contains(u"WEB-2"_s)) << "only opened issues have details";
}

TEST_F(AppStoreReloadTest, anIssueOpenedByItsFormerKeyStaysUnderThatKey)
{
    Issue moved = sampleIssue(u"NEW-5"_s);
    moved.hasDetails = true;
    answerEverything();
    service->issueCalls.answerWith(moved);
    const TaskResult<void> opened(store->loadDetails(u"OLD-1"_s));
    reloadWith({sampleIssue(u"NEW-5"_s, u"Terminé"_s)});

    EXPECT_EQ(store->details().keys(), QStringList{u"OLD-1"_s}) << "only what was opened";
}

TEST_F(AppStoreReloadTest, atMostEightProjectsOfAListGetTheirMetadataFetched)
{
    IssueList issues;
    for (int i = 0; i < 11; ++i) {
        issues += sampleIssue(u"P%1-1"_s.arg(i));
        issues += sampleIssue(u"P%1-2"_s.arg(i));
    }
    const TaskResult<void> loaded(store->reload());
    listCall().finish(issues);

    EXPECT_TRUE(loaded.isDone()) << "nobody awaits them";
    EXPECT_EQ(service->statusesCalls.count(), 8);
}

TEST_F(AppStoreReloadTest, aProjectScopeAwaitsItsOwnMetadata)
{
    const auto scope = IssueScope::project(u"WEB"_s, ProjectView::All);
    store->select(scope);
    const TaskResult<void> loaded(store->reload());
    listCall().finish({sampleIssue(u"WEB-1"_s)});

    EXPECT_FALSE(loaded.isDone());
    ASSERT_EQ(service->statusesCalls.count(), 1);
    EXPECT_EQ(service->statusesCalls[0].argument(), u"WEB"_s);
    service->statusesCalls[0].finish({});
    service->assignableUsersCalls[0].finish({});
    service->projectCalls[0].finish(sampleProject(u"WEB"_s));
    EXPECT_TRUE(loaded.isDone());
}

TEST_F(AppStoreReloadTest, metadataIsFetchedAfterAFailedReloadToo)
{
    reloadWith({});
    store->select(IssueScope::project(u"WEB"_s, ProjectView::All));
    listCall().fail(Refused);

    EXPECT_EQ(service->statusesCalls.count(), 1);
}

TEST_F(AppStoreReloadTest, whatAReloadBringsUnchangedStaysTheSameObject)
{
    reloadWith({sampleIssue(u"WEB-1"_s), sampleIssue(u"WEB-2"_s)});
    const IssueList before = store->issues();

    reloadWith({sampleIssue(u"WEB-1"_s), sampleIssue(u"WEB-2"_s, u"Terminé"_s)});

    ASSERT_EQ(store->issues().size(), 2);
    EXPECT_TRUE(store->issues()[0].isSameObject(before[0]));
    EXPECT_FALSE(store->issues()[1].isSameObject(before[1]));
}

} // namespace
