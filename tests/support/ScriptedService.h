#pragma once

#include "model/IssueService.h"
#include "support/ScriptedCall.h"

/// A back end under the control of a test. Every call is recorded by operation, with its arguments, and waits until the
/// test completes it, in any order:
///
///     const auto service = std::make_shared<ScriptedService>();
///     ... the code under test asks for a list ...
///     ASSERT_EQ(service->issuesCalls.count(), 1);
///     EXPECT_EQ(service->issuesCalls[0].argument(), IssueScope::recent());
///     service->issuesCalls[0].finish(list);                  // or .fail(JiraError(...)), or .cancel()
///
/// Operations that a test is not about can be completed automatically, until `hold()` is called:
///
///     service->projectsCalls.answerWith({project});
///     service->issueCalls.answerBy([](const QString &key) { return sampleIssue(key); });
///     service->prioritiesCalls.failWith(JiraError(JiraError::InvalidResponse{}));
///
/// A requested stop of the caller ends its pending call with `Cancelled`, which `wasStopped()` shows. End a test with
/// `cancelPending()`, because a pending call keeps its coroutine alive.
class ScriptedService final : public IssueService
{
public:
    ScriptedCalls<JiraUser> currentUserCalls;
    ScriptedCalls<QList<Project>> projectsCalls;
    ScriptedCalls<Project, QString> projectCalls;
    ScriptedCalls<QList<IssueStatus>, QString> statusesCalls;
    ScriptedCalls<QList<IssuePriority>> prioritiesCalls;
    ScriptedCalls<QList<JiraUser>, QString> assignableUsersCalls;
    ScriptedCalls<IssueList, IssueScope> issuesCalls;
    ScriptedCalls<IssueList, QString> searchCalls;
    ScriptedCalls<Issue, QString> issueCalls;
    ScriptedCalls<QList<Comment>, QString> commentsCalls;
    ScriptedCalls<QList<WorkflowTransition>, QString> transitionsCalls;
    ScriptedCalls<void, WorkflowTransition, QString> performCalls;
    ScriptedCalls<void, QString, IssueFieldUpdate> updateCalls;
    ScriptedCalls<void, QString, std::optional<JiraUser>> assignCalls;
    ScriptedCalls<Comment, QString, ADFNode, bool> addCommentCalls;
    ScriptedCalls<QString, IssueDraft> createCalls;
    ScriptedCalls<QList<JiraUser>, QString> searchUsersCalls;
    ScriptedCalls<QList<Attachment>, QString, QList<QUrl>> uploadAttachmentsCalls;
    ScriptedCalls<QUrl, Attachment> downloadCalls;
    ScriptedCalls<void, QString> deleteAttachmentCalls;
    /// The observers of the uploads, in the order of `uploadAttachmentsCalls`.
    QList<UploadObserver> uploadObservers;
    /// The results of the two synchronous operations; `browseURL` appends "/browse/" and the key.
    QString site = QStringLiteral("exemple.atlassian.net");

    /// What `listLimit` returns for every scope.
    std::optional<qsizetype> limit;

    /// Ends all pending calls of all operations with `Cancelled`.
    void cancelPending();

    QString siteName() const override { return site; }
    QCoro::Task<JiraUser> currentUser(std::stop_token stop) override;
    QCoro::Task<QList<Project>> projects(std::stop_token stop) override;
    QCoro::Task<Project> project(QString key, std::stop_token stop) override;
    QCoro::Task<QList<IssueStatus>> statuses(QString projectKey, std::stop_token stop) override;
    QCoro::Task<QList<IssuePriority>> priorities(std::stop_token stop) override;
    QCoro::Task<QList<JiraUser>> assignableUsers(QString projectKey, std::stop_token stop) override;
    QCoro::Task<IssueList> issues(IssueScope scope, std::stop_token stop) override;
    QCoro::Task<IssueList> search(QString text, std::stop_token stop) override;
    QCoro::Task<Issue> issue(QString key, std::stop_token stop) override;
    QCoro::Task<QList<Comment>> comments(QString key, std::stop_token stop) override;
    QCoro::Task<QList<WorkflowTransition>> transitions(QString key, std::stop_token stop) override;
    QCoro::Task<> perform(WorkflowTransition transition, QString key,
                          std::stop_token stop) override;
    QCoro::Task<> update(QString key, IssueFieldUpdate update, std::stop_token stop) override;
    QCoro::Task<> assign(QString key, std::optional<JiraUser> user, std::stop_token stop) override;
    QCoro::Task<Comment> addComment(QString key, ADFNode body, bool isInternal,
                                    std::stop_token stop) override;
    QCoro::Task<QString> create(IssueDraft draft, std::stop_token stop) override;
    QCoro::Task<QList<JiraUser>> searchUsers(QString query, std::stop_token stop) override;
    QCoro::Task<QList<Attachment>> uploadAttachments(QString key, QList<QUrl> files,
                                                     std::stop_token stop,
                                                     UploadObserver observer) override;
    QCoro::Task<QUrl> download(Attachment attachment, std::stop_token stop) override;
    QCoro::Task<> deleteAttachment(QString id, std::stop_token stop) override;
    std::optional<qsizetype> listLimit(const IssueScope &) const override { return limit; }
    std::optional<QUrl> browseURL(const QString &key) const override;

private:
    template <typename... Operations>
    static void cancelAll(Operations &...operations)
    {
        (operations.cancelPending(), ...);
    }
};
