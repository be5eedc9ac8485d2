#include "model/JiraError.h"
#include "state/AppStoreFixture.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const JiraError Refused(JiraError::Http{500, u"Panne."_s});

/// Two consecutive sessions, each with its own service. No data of the first session appears in the second, and queued
/// requests are not sent after the end of their session.
class AppStoreNextSessionTest : public AppStoreFixture
{
protected:
    void SetUp() override
    {
        startSession();
        reloadWith({sampleIssue(u"WEB-1"_s), sampleIssue(u"WEB-2"_s)});
    }
    void TearDown() override
    {
        store.reset();
        first->cancelPending();
    }

    /// Signs out and begins a session with another service, which has returned issues with the same keys.
    void beginNext()
    {
        store->signOut();
        service = std::make_shared<ScriptedService>();
        service->site = u"autre.atlassian.net"_s;
        sessions.service = service;
        startSession();
        reloadWith({sampleIssue(u"WEB-1"_s), sampleIssue(u"WEB-2"_s)});
    }
    QString summaryOf(const QString &key) const { return (*store->issue(key))->summary; }

    std::shared_ptr<ScriptedService> first = service;
};

// Attempts to open a session ------------------------------------------------------------------------------------------

TEST_F(AppStoreNextSessionTest, aSignInThatIsAnsweredAfterTheDemoWasOpenedChangesNothing)
{
    store->signOut();
    const auto site = std::make_shared<ScriptedService>();
    sessions.service = site;
    const TaskResult<void> signedIn(store->connect(u"exemple"_s, u"noam@exemple.fr"_s, u"jeton"_s));
    const TaskResult<void> demo(store->startDemo());
    site->currentUserCalls[0].finish(sampleUser(u"u9"_s, u"Autre"_s));

    EXPECT_TRUE(store->isDemo());
    EXPECT_EQ(sessions.keepCalls.count(), 0) << "the token is not stored";
    EXPECT_THROW(signedIn.value(), Cancelled);
    EXPECT_EQ(site->projectsCalls.count(), 0);
}

TEST_F(AppStoreNextSessionTest, aTokenThatWasBeingStoredWhenTheDemoWasOpenedIsForgotten)
{
    store->signOut();
    sessions.keepCalls.hold();
    service->currentUserCalls.answerWith(sampleUser(u"u1"_s, u"Noam"_s));
    const TaskResult<void> signedIn(store->connect(u"exemple"_s, u"noam@exemple.fr"_s, u"jeton"_s));
    const int forgotten = sessions.forgetCalls.count();
    const TaskResult<void> demo(store->startDemo());
    sessions.keepCalls[0].finish();

    EXPECT_TRUE(store->isDemo());
    EXPECT_EQ(sessions.forgetCalls.count(), forgotten + 1);
}

TEST_F(AppStoreNextSessionTest, theCredentialsOfThePicturesFollowTheSessionThatBegan)
{
    store->signOut();
    int begun = 0;
    sessions.onBegin = [&begun] { ++begun; };
    const auto site = std::make_shared<ScriptedService>();
    sessions.service = site;
    const TaskResult<void> signedIn(store->connect(u"exemple"_s, u"noam@exemple.fr"_s, u"jeton"_s));
    const TaskResult<void> demo(store->startDemo());
    site->currentUserCalls[0].finish(sampleUser(u"u9"_s, u"Autre"_s));
    EXPECT_EQ(begun, 0);

    store->signOut();
    site->currentUserCalls.answerWith(sampleUser(u"u9"_s, u"Autre"_s));
    const TaskResult<void> again(store->connect(u"exemple"_s, u"noam@exemple.fr"_s, u"jeton"_s));
    EXPECT_EQ(begun, 1);
    site->cancelPending();
}

// Late answers --------------------------------------------------------------------------------------------------------

TEST_F(AppStoreNextSessionTest, anEditThatIsRefusedLateChangesNothingInTheNext)
{
    store->rename(u"WEB-1"_s, u"Autre titre"_s);
    beginNext();
    const auto toasts = store->toasts().size();
    first->updateCalls[0].fail(Refused);

    EXPECT_EQ(summaryOf(u"WEB-1"_s), u"Résumé de WEB-1"_s);
    EXPECT_EQ(store->toasts().size(), toasts);
}

TEST_F(AppStoreNextSessionTest, aTransitionThatEndsLateChangesNothingInTheNext)
{
    const IssueStatus done = IssueStatus::guessed(u"Terminé"_s);
    store->setStatus(done, {u"WEB-1"_s});
    first->transitionsCalls.last().finish({{u"t"_s, u"Terminer"_s, done}});
    beginNext();
    first->performCalls[0].finish();

    EXPECT_EQ((*store->issue(u"WEB-1"_s))->status, IssueStatus::guessed(u"À faire"_s));
    EXPECT_FALSE(store->transitions().contains(u"WEB-1"_s));
}

TEST_F(AppStoreNextSessionTest, aTransitionOfASessionThatIsOverIsNotPerformed)
{
    const IssueStatus done = IssueStatus::guessed(u"Terminé"_s);
    store->setStatus(done, {u"WEB-1"_s});
    store->signOut();
    first->transitionsCalls.last().finish({{u"t"_s, u"Terminer"_s, done}});

    EXPECT_EQ(first->performCalls.count(), 0);
}

TEST_F(AppStoreNextSessionTest, theTransitionsThatWaitedForTheirTurnAreNotSentAfterTheSignOut)
{
    IssueList many;
    QStringList keys;
    for (int i = 0; i < 12; ++i) {
        keys += u"WEB-%1"_s.arg(i);
        many += sampleIssue(keys.last());
    }
    reloadWith(many);
    const int before = first->transitionsCalls.count();
    const IssueStatus done = IssueStatus::guessed(u"Terminé"_s);
    store->setStatus(done, keys);
    ASSERT_EQ(first->transitionsCalls.count(), before + 8);
    store->signOut();
    for (int i = before; i < before + 8; ++i)
        first->transitionsCalls[i].fail(Refused);

    EXPECT_EQ(first->transitionsCalls.count(), before + 8);
}

TEST_F(AppStoreNextSessionTest, eightRequestsThatHangDoNotHoldUpTheStatusChangesOfTheNext)
{
    IssueList many;
    QStringList keys;
    for (int i = 0; i < 8; ++i) {
        keys += u"WEB-%1"_s.arg(i);
        many += sampleIssue(keys.last());
    }
    reloadWith(many);
    const IssueStatus done = IssueStatus::guessed(u"Terminé"_s);
    store->setStatus(done, keys);
    beginNext();
    const int before = service->transitionsCalls.count();
    store->setStatus(done, {u"WEB-1"_s});

    EXPECT_EQ(service->transitionsCalls.count(), before + 1);
}

TEST_F(AppStoreNextSessionTest, aCommentThatIsStoredLateIsNotShownInTheNext)
{
    const TaskResult<bool> posted(
        store->addComment(u"Bonjour"_s, u"WEB-1"_s, CommentAudience::Everyone, {}));
    beginNext();
    first->addCommentCalls[0].finish(Comment());

    EXPECT_FALSE(posted.value());
    EXPECT_FALSE(store->comments().contains(u"WEB-1"_s));
}

TEST_F(AppStoreNextSessionTest, anIssueThatIsCreatedLateIsNotOpenedInTheNext)
{
    const TaskResult<std::optional<QString>> created(store->create(IssueDraft()));
    beginNext();
    const int lists = service->issuesCalls.count();
    first->createCalls[0].finish(u"WEB-1"_s);

    EXPECT_FALSE(created.value());
    EXPECT_FALSE(store->inspectorKey());
    EXPECT_EQ(service->issuesCalls.count(), lists);
}

TEST_F(AppStoreNextSessionTest, detailsThatArriveLateAreNotShownInTheNext)
{
    const TaskResult<void> loaded(store->loadDetails(u"WEB-1"_s));
    beginNext();
    Issue late = sampleIssue(u"WEB-1"_s);
    late.summary = u"D'un autre site"_s;
    first->issueCalls[0].finish(late);

    EXPECT_TRUE(loaded.isDone());
    EXPECT_EQ(summaryOf(u"WEB-1"_s), u"Résumé de WEB-1"_s);
    EXPECT_FALSE(store->details().contains(u"WEB-1"_s));
}

TEST_F(AppStoreNextSessionTest, aProjectIsAskedOfItsOwnSiteAlone)
{
    const int before = first->projectCalls.count();
    const TaskResult<void> loaded(store->loadProjectMeta(u"SUP"_s));
    beginNext();
    const int asked = service->projectCalls.count();
    first->statusesCalls.last().finish({IssueStatus::guessed(u"Terminé"_s)});
    first->assignableUsersCalls.last().finish({sampleUser(u"u7"_s, u"Ancienne"_s)});

    EXPECT_EQ(first->projectCalls.count(), before + 1);
    EXPECT_EQ(service->projectCalls.count(), asked);
    EXPECT_FALSE(store->projectStatuses().contains(u"SUP"_s));
    EXPECT_FALSE(store->assignables().contains(u"SUP"_s));
    EXPECT_FALSE(store->knownUsers().contains(u"u7"_s));
}

TEST_F(AppStoreNextSessionTest, afterASignOutALateAnswerFillsNoList)
{
    const TaskResult<void> reloaded(store->reload());
    const TaskResult<void> mine(store->refreshMyIssues());
    const int calls = first->issuesCalls.count();
    store->signOut();
    first->issuesCalls[calls - 2].finish({sampleIssue(u"WEB-9"_s)});
    first->issuesCalls[calls - 1].finish({sampleIssue(u"WEB-9"_s)});

    EXPECT_TRUE(reloaded.isDone());
    EXPECT_TRUE(mine.isDone());
    EXPECT_TRUE(store->issues().isEmpty());
    EXPECT_TRUE(store->myOpenIssues().isEmpty());
    EXPECT_TRUE(store->scopeCache().isEmpty());
    EXPECT_FALSE(store->isLoading());
}

TEST_F(AppStoreNextSessionTest, anUploadThatEndsLateIsNotCountedInTheNext)
{
    const TaskResult<QList<Attachment>> uploaded(
        store->uploadAttachments(u"WEB-1"_s, {QUrl(u"file:///a"_s)}));
    EXPECT_EQ(store->uploading().value(u"WEB-1"_s), 1);
    beginNext();
    EXPECT_EQ(store->uploading().value(u"WEB-1"_s), 0);
    first->uploadAttachmentsCalls[0].finish({});

    EXPECT_EQ(store->uploading().value(u"WEB-1"_s), 0);
    EXPECT_TRUE(store->toasts().isEmpty());
}

TEST_F(AppStoreNextSessionTest, theTimerOfTheFirstRefreshesNothing)
{
    const int before = first->issuesCalls.count();
    store->signOut();
    clock.advance(600s);
    EXPECT_EQ(first->issuesCalls.count(), before);
}

// The initial state of the next session -------------------------------------------------------------------------------

TEST_F(AppStoreNextSessionTest, theNextSessionBeginsWithNothingOfTheFirst)
{
    first->issueCalls.failWith(Refused);
    first->commentsCalls.answerWith({});
    const TaskResult<void> failed(store->loadDetails(u"SUP-4"_s));
    ASSERT_TRUE(store->detailErrors().contains(u"SUP-4"_s));
    first->prioritiesCalls.answerWith({IssuePriority(u"1"_s, u"Highest"_s)});
    store->setChecked({u"WEB-1"_s});
    store->setFocusedKey(u"WEB-1"_s);
    store->setInspectorKey(u"WEB-2"_s);
    store->setFilterText(u"titre"_s);
    IssueFilters filters;
    filters.labels = {u"web"_s};
    store->setFilters(filters);
    first->issuesCalls.failWith(Refused);
    const TaskResult<void> reloaded(store->reload());
    ASSERT_TRUE(store->loadError());
    store->signOut();

    EXPECT_TRUE(store->checked().isEmpty());
    EXPECT_FALSE(store->focusedKey());
    EXPECT_FALSE(store->inspectorKey());
    EXPECT_TRUE(store->filterText().isEmpty());
    EXPECT_TRUE(store->filters().isEmpty());
    EXPECT_TRUE(store->detailErrors().isEmpty());
    EXPECT_FALSE(store->loadError());
    EXPECT_FALSE(store->me());
    EXPECT_FALSE(store->isDemo());
}

TEST_F(AppStoreNextSessionTest, thePrioritiesOfTheFirstAreNotOfferedInTheNext)
{
    answerEverything();
    first->prioritiesCalls.answerWith({IssuePriority(u"1"_s, u"Highest"_s)});
    const TaskResult<void> again(store->startDemo());
    ASSERT_EQ(store->priorities().size(), 1);
    first->prioritiesCalls.hold();
    const TaskResult<void> next(store->startDemo());

    EXPECT_TRUE(store->priorities().isEmpty());
}

// The start of a session ----------------------------------------------------------------------------------------------

TEST_F(AppStoreNextSessionTest, whateverTheStartCouldNotFetchComesWithTheNextRefresh)
{
    answerEverything();
    first->prioritiesCalls.failWith(Refused);
    const TaskResult<void> started(store->startDemo());
    EXPECT_TRUE(store->priorities().isEmpty());
    const int accounts = first->currentUserCalls.count();
    const int projects = first->projectsCalls.count();
    first->prioritiesCalls.answerWith({IssuePriority(u"1"_s, u"Highest"_s)});
    store->refresh();

    EXPECT_EQ(store->priorities().size(), 1);
    EXPECT_EQ(first->currentUserCalls.count(), accounts) << "what is known is not asked again";
    EXPECT_EQ(first->projectsCalls.count(), projects);
}

TEST_F(AppStoreNextSessionTest, aStartWhoseAccountIsUnansweredLoadsTheListAlready)
{
    holdEverything();
    const TaskResult<void> started(store->startDemo());

    EXPECT_EQ(store->phase(), AppStore::Phase::Ready);
    EXPECT_TRUE(store->isLoading()) << "loading rows stand in the list";
    EXPECT_TRUE(store->issues().isEmpty());
}

TEST_F(AppStoreNextSessionTest, theUsersIssuesComeWithTheRefreshAfterAFailedStart)
{
    answerEverything();
    first->issuesCalls.failWith(Refused);
    const TaskResult<void> started(store->startDemo());
    first->issuesCalls.answerWith({sampleIssue(u"WEB-1"_s)});
    store->refresh();

    EXPECT_EQ(store->myOpenCount(), 1);
    const int calls = first->issuesCalls.count();
    store->refresh();
    EXPECT_EQ(first->issuesCalls.count(), calls + 1) << "the list alone";
}

TEST_F(AppStoreNextSessionTest, anUnexpectedExceptionEndsTheLoadingAndIsTold)
{
    const TaskResult<void> reloaded(store->reload());
    first->issuesCalls.last().failWith(std::make_exception_ptr(std::runtime_error("unexpected")));

    EXPECT_FALSE(store->isLoading());
    EXPECT_EQ(store->loadError(), u"Une erreur inattendue est survenue."_s);
}

} // namespace
