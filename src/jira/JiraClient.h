#pragma once

#include "jira/JiraCredentials.h"
#include "jira/SiteConnection.h"
#include "model/IssueService.h"
#include "platform/Clock.h"
#include "platform/SystemCalendar.h"

#include <QString>

/// The back end for a real Jira site, either Jira Cloud or Jira Data Center.
///
/// UI thread only. Any number of operations can run at once; they share no state. The communication runs on a thread of
/// the client, and responses are decoded and mapped on other threads. Operations fail with `JiraError`, with
/// `TransportError` if there was no response, and with `Cancelled` after a requested stop or the destruction of the
/// client. Failed requests are not repeated, except for the alternatives documented at the single operations. A request
/// that changes data reaches the site at most once.
class JiraClient final : public IssueService
{
public:
    /// Opens no connection. The clock and the calendar must outlive the client. `calendar` determines periods and the order of names;
    /// `attachmentFolder` is the folder for the downloads of all sites, for example `AttachmentCache::systemFolder()`.
    JiraClient(const JiraCredentials &credentials, Clock &clock, const SystemCalendar &calendar,
               const QString &attachmentFolder);
    /// Cancels the running operations.
    ~JiraClient() override;

    const JiraCredentials &credentials() const { return m_credentials; }

    QString siteName() const override;
    QCoro::Task<JiraUser> currentUser(std::stop_token stop = {}) override;
    /// At most 500 projects, ordered by name.
    QCoro::Task<QList<Project>> projects(std::stop_token stop = {}) override;
    QCoro::Task<Project> project(QString key, std::stop_token stop = {}) override;
    QCoro::Task<QList<IssueStatus>> statuses(QString projectKey,
                                             std::stop_token stop = {}) override;
    /// Uses the endpoint of older sites if the current one fails.
    QCoro::Task<QList<IssuePriority>> priorities(std::stop_token stop = {}) override;
    QCoro::Task<QList<JiraUser>> assignableUsers(QString projectKey,
                                                 std::stop_token stop = {}) override;
    /// If the site answers 400 to a query with sprints, the project views are searched by status category instead.
    QCoro::Task<IssueList> issues(IssueScope scope, std::stop_token stop = {}) override;
    /// If the text looks like an issue key and the issue can be fetched, only this issue; otherwise at most 20 issues.
    QCoro::Task<IssueList> search(QString text, std::stop_token stop = {}) override;
    QCoro::Task<Issue> issue(QString key, std::stop_token stop = {}) override;
    /// At most 100 comments, the oldest first.
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
    /// Sends all files in one request, which succeeds or fails as a whole.
    QCoro::Task<QList<Attachment>> uploadAttachments(QString key, QList<QUrl> files,
                                                     std::stop_token stop = {},
                                                     UploadObserver observer = {}) override;
    /// Sends no request for a file that was downloaded before.
    QCoro::Task<QUrl> download(Attachment attachment, std::stop_token stop = {}) override;
    QCoro::Task<> deleteAttachment(QString id, std::stop_token stop = {}) override;
    std::optional<qsizetype> listLimit(const IssueScope &scope) const override;
    std::optional<QUrl> browseURL(const QString &key) const override;

private:
    JiraCredentials m_credentials;
    Clock &m_clock;
    const SystemCalendar &m_calendar;
    QString m_attachmentFolder;
    SiteConnectionPtr m_connection;
};
