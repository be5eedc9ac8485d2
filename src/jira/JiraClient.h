#pragma once

#include "jira/JiraCredentials.h"
#include "jira/SiteConnection.h"
#include "model/IssueService.h"
#include "model/UserCalendar.h"
#include "platform/Clock.h"

#include <QString>

/// The back end on a real Jira site, of Jira Cloud or Jira Data Center.
///
/// UI thread only; any number of operations run at once and share nothing. Requests and files run on a thread of the
/// client's own, and answers are decoded and mapped on further ones. Operations fail with `JiraError`, or with
/// `TransportError` when there was no answer, and with `Cancelled` after a requested stop or when the client is gone.
/// Nothing is tried again, but for the fall-backs that are told with their operations. What changes the site reaches it
/// at most once.
class JiraClient final : public IssueService
{
public:
    /// Opens no connection. The clock outlives the client. `calendar` tells periods and the order of names;
    /// `attachmentFolder` is where downloads are kept, for example `AttachmentCache::systemFolder()`.
    JiraClient(const JiraCredentials &credentials, Clock &clock, UserCalendar calendar,
               QString attachmentFolder);
    /// Ends the operations under way.
    ~JiraClient() override;

    const JiraCredentials &credentials() const { return m_credentials; }

    QString siteName() const override;
    QCoro::Task<JiraUser> currentUser(std::stop_token stop = {}) override;
    /// At most 500, by name.
    QCoro::Task<QList<Project>> projects(std::stop_token stop = {}) override;
    QCoro::Task<Project> project(QString key, std::stop_token stop = {}) override;
    QCoro::Task<QList<IssueStatus>> statuses(QString projectKey,
                                             std::stop_token stop = {}) override;
    /// Asks in the way of older sites when the first way fails.
    QCoro::Task<QList<IssuePriority>> priorities(std::stop_token stop = {}) override;
    QCoro::Task<QList<JiraUser>> assignableUsers(QString projectKey,
                                                 std::stop_token stop = {}) override;
    /// Views of a project's sprints fall back to categories of statuses where the site answers 400.
    QCoro::Task<IssueList> issues(IssueScope scope, std::stop_token stop = {}) override;
    /// A text that looks like an issue's key is that issue, if it can be had; at most 20 issues else.
    QCoro::Task<IssueList> search(QString text, std::stop_token stop = {}) override;
    QCoro::Task<Issue> issue(QString key, std::stop_token stop = {}) override;
    /// At most 100, oldest first.
    QCoro::Task<QList<Comment>> comments(QString key, std::stop_token stop = {}) override;
    QCoro::Task<QList<WorkflowTransition>> transitions(QString key,
                                                       std::stop_token stop = {}) override;
    QCoro::Task<> perform(WorkflowTransition transition, QString key,
                          std::stop_token stop = {}) override;
    QCoro::Task<> update(QString key, IssueFieldUpdate update, std::stop_token stop = {}) override;
    QCoro::Task<> assign(QString key, std::optional<JiraUser> user,
                         std::stop_token stop = {}) override;
    QCoro::Task<Comment> addComment(QString key, ADFNode body, bool isInternal,
                                    std::stop_token stop = {}) override;
    QCoro::Task<QString> create(IssueDraft draft, std::stop_token stop = {}) override;
    QCoro::Task<QList<JiraUser>> searchUsers(QString query, std::stop_token stop = {}) override;
    /// All files go in one request, and fail together.
    QCoro::Task<QList<Attachment>> uploadAttachments(QString key, QList<QUrl> files,
                                                     std::stop_token stop = {}) override;
    /// Makes no request for a file that was downloaded before.
    QCoro::Task<QUrl> download(Attachment attachment, std::stop_token stop = {}) override;
    QCoro::Task<> deleteAttachment(QString id, std::stop_token stop = {}) override;
    std::optional<QUrl> browseURL(const QString &key) const override;

private:
    JiraCredentials m_credentials;
    Clock &m_clock;
    UserCalendar m_calendar;
    QString m_attachmentFolder;
    SiteConnectionPtr m_connection;
};
