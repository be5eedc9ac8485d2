#include "model/JiraError.h"
#include "state/AppStoreFixture.h"
#include "support/ComputationLog.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

const JiraError Refused(JiraError::Http{400, u"Champ refusé."_s});
const auto ErrorSymbol = u"exclamationmark.triangle.fill"_s;

class AppStoreEditsTest : public AppStoreFixture
{
protected:
    /// Three issues in the list, in the user's open issues and in the cache of another scope. One of them is opened.
    void SetUp() override
    {
        startSession();
        store->select(IssueScope::recent());
        service->issuesCalls.last().finish(Issues);
        finishMetadata();
        store->select(IssueScope::myIssues());
        service->issuesCalls.last().finish(Issues);
        const TaskResult<void> mine(store->refreshMyIssues());
        service->issuesCalls.last().finish(Issues);
        answerEverything();
        service->issueCalls.answerWith(detailed());
        const TaskResult<void> opened(store->loadDetails(u"WEB-1"_s));
        holdEverything();
        ASSERT_TRUE(opened.isDone());
    }

    void finishMetadata()
    {
        service->statusesCalls.last().finish({});
        service->assignableUsersCalls.last().finish({});
        service->projectCalls.last().finish(sampleProject(u"WEB"_s));
    }

    Issue detailed() const
    {
        Issue issue = *Issues[0];
        issue.hasDetails = true;
        return issue;
    }

    static Issue labelled(const QString &key, const QStringList &labels)
    {
        Issue issue = sampleIssue(key);
        issue.labels = labels;
        return issue;
    }

    static IssueList withKey(IssueList issues, const QString &key)
    {
        issues.removeIf([&key](const SharedIssue &issue) { return issue->key != key; });
        return issues;
    }

    /// All copies of the issue in the store.
    IssueList copies(const QString &key)
    {
        IssueList result = withKey(store->issues(), key);
        result += withKey(store->myOpenIssues(), key);
        if (store->details().contains(key))
            result += store->details().value(key);
        const IssueScope scope = store->scope();
        store->select(IssueScope::recent());
        result += withKey(store->issues(), key);
        store->select(scope);
        return result;
    }

    template <typename T>
    void expectEverywhere(const QString &key, T Issue::*field, const T &value)
    {
        const IssueList all = copies(key);
        ASSERT_GE(all.size(), 3);
        for (const SharedIssue &copy : all)
            EXPECT_EQ((*copy).*field, value);
    }

    void expectErrorToast(const QString &message)
    {
        ASSERT_EQ(store->toasts().size(), 1);
        EXPECT_EQ(store->toasts()[0].message, message);
        EXPECT_EQ(store->toasts()[0].symbol, ErrorSymbol);
        EXPECT_TRUE(store->toasts()[0].isError());
    }

    static WorkflowTransition to(const IssueStatus &status)
    {
        return {u"t-"_s + status.id(), u"Vers "_s + status.name(), status};
    }

    const IssueStatus Doing{u"10"_s, u"En cours"_s, u"indeterminate"_s};
    const IssueStatus Closed{u"11"_s, u"Terminé"_s, u"done"_s};
    const IssuePriority High{u"2"_s, u"High"_s};
    const JiraUser Maud = sampleUser(u"u2"_s, u"Maud Kervella"_s);
    const IssueList Issues = {labelled(u"WEB-1"_s, {u"ios"_s}), labelled(u"WEB-2"_s, {}),
                              labelled(u"WEB-3"_s, {})};
};

TEST_F(AppStoreEditsTest, anEditShowsAtOnceInEveryCopy)
{
    store->setPriority(High, {u"WEB-1"_s});

    expectEverywhere<std::optional<IssuePriority>>(u"WEB-1"_s, &Issue::priority, High);
    expectEverywhere<std::optional<IssuePriority>>(u"WEB-2"_s, &Issue::priority, std::nullopt);
    ASSERT_EQ(service->updateCalls.count(), 1);
    EXPECT_EQ(service->updateCalls[0].argument<0>(), u"WEB-1"_s);
    EXPECT_EQ(service->updateCalls[0].argument<1>(),
              IssueFieldUpdate{IssueFieldUpdate::Priority{High}});
}

TEST_F(AppStoreEditsTest, anEditAndItsRejectionGroupOnceEachAndShareAllOtherRecords)
{
    reloadWith(Issues);
    const ComputationLog log;
    const IssueList before = store->issues();
    store->setStatus(Closed, {u"WEB-1"_s});
    service->transitionsCalls.last().fail(Refused);

    EXPECT_EQ(log.count(u"groups"_s), 2);
    EXPECT_TRUE(store->issues()[1].isSameObject(before[1]));
    EXPECT_TRUE(store->scopeCache().value(store->scope()).list()[1].isSameObject(before[1]));
    expectEverywhere(u"WEB-1"_s, &Issue::status, Issues[0]->status);
}

TEST_F(AppStoreEditsTest, successChangesNothingMore)
{
    store->setPriority(High, {u"WEB-1"_s});
    const QSignalSpy changes(store.get(), &AppStore::issuesChanged);
    service->updateCalls[0].finish();

    EXPECT_EQ(changes.count(), 0);
    EXPECT_TRUE(store->toasts().isEmpty());
}

TEST_F(AppStoreEditsTest, aRefusedEditIsUndoneEverywhereWithAToast)
{
    store->setPriority(High, {u"WEB-1"_s});
    store->rename(u"WEB-1"_s, u"Nouveau"_s);
    service->updateCalls[0].fail(Refused);

    expectEverywhere<std::optional<IssuePriority>>(u"WEB-1"_s, &Issue::priority, std::nullopt);
    expectEverywhere(u"WEB-1"_s, &Issue::summary, u"Nouveau"_s);
    expectErrorToast(Refused.message());
}

TEST_F(AppStoreEditsTest, aCancelledEditIsUndoneWithoutAToast)
{
    store->setPriority(High, {u"WEB-1"_s});
    service->updateCalls[0].cancel();

    expectEverywhere<std::optional<IssuePriority>>(u"WEB-1"_s, &Issue::priority, std::nullopt);
    EXPECT_TRUE(store->toasts().isEmpty());
}

TEST_F(AppStoreEditsTest, withoutASessionNothingIsSent)
{
    store->signOut();
    store->rename(u"WEB-1"_s, u"Nouveau"_s);
    store->setStatus(Doing, {u"WEB-1"_s});
    store->assign({u"WEB-1"_s}, Maud);

    EXPECT_EQ(service->updateCalls.count() + service->assignCalls.count(), 0);
    EXPECT_TRUE(store->toasts().isEmpty());
}

TEST_F(AppStoreEditsTest, anIssueOpenedByItsFormerKeyIsEditedUnderThatKey)
{
    answerEverything();
    service->issueCalls.answerWith(sampleIssue(u"NEW-5"_s));
    const TaskResult<void> opened(store->loadDetails(u"OLD-1"_s));
    holdEverything();
    store->rename(u"OLD-1"_s, u"Nouveau"_s);

    EXPECT_EQ(store->details().value(u"OLD-1"_s)->summary, u"Nouveau"_s);
    ASSERT_EQ(service->updateCalls.count(), 1);
    EXPECT_EQ(service->updateCalls[0].argument<0>(), u"OLD-1"_s);
    service->updateCalls[0].fail(Refused);
    EXPECT_EQ(store->details().value(u"OLD-1"_s)->summary, u"Résumé de NEW-5"_s);
}

TEST_F(AppStoreEditsTest, ofTwoQuickEditsTheFirstThatFailsPutsBackTheValueFromBeforeIt)
{
    store->rename(u"WEB-1"_s, u"Un"_s);
    store->rename(u"WEB-1"_s, u"Deux"_s);
    service->updateCalls[0].fail(Refused);
    expectEverywhere(u"WEB-1"_s, &Issue::summary, u"Résumé de WEB-1"_s);

    service->updateCalls[1].finish();
    expectEverywhere(u"WEB-1"_s, &Issue::summary, u"Deux"_s);
}

TEST_F(AppStoreEditsTest, ofTwoQuickEditsTheFirstFailsAfterTheSecondWasTaken)
{
    store->rename(u"WEB-1"_s, u"Un"_s);
    store->rename(u"WEB-1"_s, u"Deux"_s);
    service->updateCalls[1].finish();
    service->updateCalls[0].fail(Refused);

    expectEverywhere(u"WEB-1"_s, &Issue::summary, u"Deux"_s);
}

TEST_F(AppStoreEditsTest, issuesThatAreAsWishedOrUnknownAreLeftOut)
{
    store->rename(u"WEB-1"_s, u"Résumé de WEB-1"_s);
    store->setPriority(High, {u"WEB-2"_s, u"ABC-1"_s, u"WEB-2"_s});
    store->setPriority(High, {u"WEB-2"_s});
    store->setLabels({u"a"_s}, u"ABC-1"_s);
    store->setDueDate(QDate(2026, 11, 2), u"ABC-1"_s);
    store->setDescription(u"Rien"_s, u"ABC-1"_s);

    EXPECT_EQ(service->updateCalls.count(), 1);
}

TEST_F(AppStoreEditsTest, theDueDateIsSentEvenUnchanged)
{
    store->setDueDate(std::nullopt, u"WEB-1"_s);
    store->setDueDate(QDate(2026, 11, 2), u"WEB-1"_s);

    EXPECT_EQ(service->updateCalls.count(), 2);
    expectEverywhere<std::optional<QDate>>(u"WEB-1"_s, &Issue::dueDate, QDate(2026, 11, 2));
}

TEST_F(AppStoreEditsTest, aDropOnTheOwnColumnMakesNoRequestAtAll)
{
    const int before = service->transitionsCalls.count();
    store->setStatus(IssueStatus(u"77"_s, u"To Do"_s, u"new"_s), {u"WEB-1"_s});

    EXPECT_EQ(service->transitionsCalls.count(), before);
    expectEverywhere(u"WEB-1"_s, &Issue::status, Issues[0]->status);
}

TEST_F(AppStoreEditsTest, aStatusShowsAtOnceAndDatesTheIssue)
{
    store->setStatus(Doing, {u"WEB-1"_s});

    expectEverywhere(u"WEB-1"_s, &Issue::status, Doing);
    expectEverywhere(u"WEB-1"_s, &Issue::updated, clock.now());
}

TEST_F(AppStoreEditsTest, aTransitionIsFoundByItsGroupAndTheIssueShowsTheWorkflowsOwnStatus)
{
    const IssueStatus own(u"99"_s, u"Done"_s, u"done"_s);
    store->setStatus(Closed, {u"WEB-1"_s});
    service->transitionsCalls.last().finish({to(Doing), to(own)});
    ASSERT_EQ(service->performCalls.count(), 1);
    EXPECT_EQ(service->performCalls[0].argument<0>(), to(own));
    EXPECT_EQ(service->performCalls[0].argument<1>(), u"WEB-1"_s);
    expectEverywhere(u"WEB-1"_s, &Issue::status, Closed);
    service->performCalls[0].finish();
    expectEverywhere(u"WEB-1"_s, &Issue::status, own);
    service->transitionsCalls.last().finish({to(Doing)});

    EXPECT_EQ(store->transitions().value(u"WEB-1"_s), QList{to(Doing)});
    EXPECT_TRUE(store->toasts().isEmpty());
}

TEST_F(AppStoreEditsTest, offeredMovesThatCannotBeRefreshedAreForgottenWithoutAToast)
{
    answerEverything();
    service->transitionsCalls.answerWith({to(Doing)});
    const TaskResult<void> opened(store->loadDetails(u"WEB-1"_s));
    holdEverything();
    ASSERT_TRUE(store->transitions().contains(u"WEB-1"_s));

    store->setStatus(Doing, {u"WEB-1"_s});
    service->transitionsCalls.last().finish({to(Doing)});
    service->performCalls.last().finish();
    service->transitionsCalls.last().fail(Refused);

    EXPECT_FALSE(store->transitions().contains(u"WEB-1"_s));
    EXPECT_TRUE(store->toasts().isEmpty());
    expectEverywhere(u"WEB-1"_s, &Issue::status, Doing);
}

TEST_F(AppStoreEditsTest, ofABulkChangeWhereOneHasNoSuchTransitionTwoMoveAndOneReturns)
{
    service->transitionsCalls.answerBy([this](const QString &key) {
        return key == u"WEB-2"_s ? QList{to(Doing)} : QList{to(Closed)};
    });
    service->performCalls.answerWith();
    store->setStatus(Closed, {u"WEB-1"_s, u"WEB-2"_s, u"WEB-3"_s});

    expectEverywhere(u"WEB-1"_s, &Issue::status, Closed);
    expectEverywhere(u"WEB-2"_s, &Issue::status, Issues[1]->status);
    expectEverywhere(u"WEB-2"_s, &Issue::updated, Issues[1]->updated);
    expectEverywhere(u"WEB-3"_s, &Issue::status, Closed);
    expectErrorToast(
        u"Le workflow Jira ne permet pas de passer à « Terminé » depuis le statut actuel."_s);
}

TEST_F(AppStoreEditsTest, aTransitionThatFailsOrIsCancelledBringsStatusAndDateBack)
{
    store->setStatus(Doing, {u"WEB-1"_s, u"WEB-2"_s, u"WEB-3"_s});
    const int first = service->transitionsCalls.count() - 3;
    service->transitionsCalls[first].fail(Refused);
    service->transitionsCalls[first + 1].cancel();
    service->transitionsCalls[first + 2].finish({to(Doing)});
    service->performCalls.last().cancel();

    for (const SharedIssue &issue : Issues) {
        expectEverywhere(issue->key, &Issue::status, issue->status);
        expectEverywhere(issue->key, &Issue::updated, issue->updated);
    }
    expectErrorToast(Refused.message());
}

TEST_F(AppStoreEditsTest, toggleLabelOnAMixedSelectionAddsItEverywhereThenRemovesIt)
{
    store->toggleLabel(u"ios"_s, {u"WEB-1"_s, u"WEB-2"_s});
    expectEverywhere(u"WEB-1"_s, &Issue::labels, QStringList{u"ios"_s});
    expectEverywhere(u"WEB-2"_s, &Issue::labels, QStringList{u"ios"_s});
    EXPECT_EQ(service->updateCalls.count(), 1);
    store->toggleLabel(u"ios"_s, {u"WEB-1"_s, u"WEB-2"_s});
    expectEverywhere(u"WEB-1"_s, &Issue::labels, QStringList());
    expectEverywhere(u"WEB-2"_s, &Issue::labels, QStringList());
    EXPECT_EQ(service->updateCalls.count(), 3);
}

TEST_F(AppStoreEditsTest, assignToThePresentAssigneeMakesNoRequestButRefreshesOnce)
{
    store->assign({u"WEB-1"_s}, Maud);
    const int lists = service->issuesCalls.count();
    store->assign({u"WEB-1"_s}, Maud);

    EXPECT_EQ(service->assignCalls.count(), 1);
    EXPECT_EQ(service->issuesCalls.count(), lists + 1);
    EXPECT_EQ(service->issuesCalls.last().argument(), IssueScope::myIssues());
}

TEST_F(AppStoreEditsTest, assignToNobodyOnAnUnassignedIssueMakesNoRequest)
{
    store->assign({u"WEB-1"_s}, std::nullopt);
    EXPECT_EQ(service->assignCalls.count(), 0);
}

TEST_F(AppStoreEditsTest, aRefusedAssignmentComesBackAlone)
{
    store->assign({u"WEB-1"_s, u"WEB-2"_s}, Maud);
    service->assignCalls[0].finish();
    service->assignCalls[1].fail(Refused);

    expectEverywhere<std::optional<JiraUser>>(u"WEB-1"_s, &Issue::assignee, Maud);
    expectEverywhere<std::optional<JiraUser>>(u"WEB-2"_s, &Issue::assignee, std::nullopt);
    expectErrorToast(Refused.message());
}

TEST_F(AppStoreEditsTest, aDescriptionOfOnlySpacesIsClearedByTheUpdate)
{
    store->setDescription(u"Un texte"_s, u"WEB-1"_s);
    ASSERT_TRUE(store->details().value(u"WEB-1"_s)->description);
    store->setDescription(u" \n\t "_s, u"WEB-1"_s);

    EXPECT_EQ(service->updateCalls.last().argument<1>(),
              IssueFieldUpdate{IssueFieldUpdate::Description{std::nullopt}});
    expectEverywhere<std::optional<ADFNode>>(u"WEB-1"_s, &Issue::description, std::nullopt);
}

} // namespace
