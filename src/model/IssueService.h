#pragma once

#include "model/ADFNode.h"
#include "model/Attachment.h"
#include "model/Comment.h"
#include "model/Issue.h"
#include "model/IssueEdits.h"
#include "model/IssueScope.h"
#include "model/Project.h"
#include "model/UploadProgress.h"

#include <QCoro/QCoroTask>
#include <QList>
#include <QString>
#include <QUrl>

#include <optional>
#include <stop_token>

/// The interface between the application and a back end. Every asynchronous operation may fail with a `Failure` whose
/// text can be shown to the user. Results are returned on the thread of the caller. When a stop is requested, an
/// operation fails with `Cancelled` as soon as possible. Three operations are synchronous, never fail and never use the
/// network: `siteName`, `listLimit` and `browseURL`.
class IssueService
{
public:
    IssueService() = default;
    virtual ~IssueService() = default;
    IssueService(const IssueService &) = delete;
    IssueService &operator=(const IssueService &) = delete;

    /// The name of the site to display: its host, or its whole address if it has no host.
    virtual QString siteName() const = 0;
    /// The account that is signed in.
    virtual QCoro::Task<JiraUser> currentUser(std::stop_token stop = {}) = 0;
    /// Every project that the user can see.
    virtual QCoro::Task<QList<Project>> projects(std::stop_token stop = {}) = 0;
    /// One project, including its issue types.
    virtual QCoro::Task<Project> project(QString key, std::stop_token stop = {}) = 0;
    /// The statuses of all workflows of the project, without duplicates.
    virtual QCoro::Task<QList<IssueStatus>> statuses(QString projectKey,
                                                     std::stop_token stop = {}) = 0;
    /// The priorities of the site, in the site's order.
    virtual QCoro::Task<QList<IssuePriority>> priorities(std::stop_token stop = {}) = 0;
    /// The users to whom issues of the project can be assigned.
    virtual QCoro::Task<QList<JiraUser>> assignableUsers(QString projectKey,
                                                         std::stop_token stop = {}) = 0;
    /// The issues of a scope, in the order that the scope defines. `hasDetails` is false for all of them.
    virtual QCoro::Task<IssueList> issues(IssueScope scope, std::stop_token stop = {}) = 0;
    /// The issues of the whole site that match a free text.
    virtual QCoro::Task<IssueList> search(QString text, std::stop_token stop = {}) = 0;
    /// The full record, with `hasDetails` true. Fails for an unknown key.
    virtual QCoro::Task<Issue> issue(QString key, std::stop_token stop = {}) = 0;
    /// The comments on the issue, in the order returned by the service.
    virtual QCoro::Task<QList<Comment>> comments(QString key, std::stop_token stop = {}) = 0;
    /// The transitions that the workflow allows from the issue's current status.
    virtual QCoro::Task<QList<WorkflowTransition>> transitions(QString key,
                                                               std::stop_token stop = {}) = 0;
    /// Performs the transition on the issue.
    virtual QCoro::Task<> perform(WorkflowTransition transition, QString key,
                                  std::stop_token stop = {}) = 0;
    /// Changes one field of the issue.
    virtual QCoro::Task<> update(QString key, IssueFieldUpdate update,
                                 std::stop_token stop = {}) = 0;
    /// Assigns the issue to the user, or unassigns it if the user is absent.
    virtual QCoro::Task<> assign(QString key, std::optional<JiraUser> user,
                                 std::stop_token stop = {}) = 0;
    /// Adds a comment and returns it as the service stored it.
    virtual QCoro::Task<Comment> addComment(QString key, ADFNode body, bool isInternal,
                                            std::stop_token stop = {}) = 0;
    /// Creates the issue and returns its new key.
    virtual QCoro::Task<QString> create(IssueDraft draft, std::stop_token stop = {}) = 0;
    /// The users whose name matches the query, for mentions and assignment.
    virtual QCoro::Task<QList<JiraUser>> searchUsers(QString query, std::stop_token stop = {}) = 0;
    /// Uploads local files in one operation and returns the stored attachments. The observer is told how much was
    /// sent; it is not called by a service that sends nothing. After a stop, the files may be stored nevertheless.
    virtual QCoro::Task<QList<Attachment>> uploadAttachments(QString key, QList<QUrl> files,
                                                             std::stop_token stop = {},
                                                             UploadObserver observer = {}) = 0;
    /// Downloads the attachment and returns the address of the local file.
    virtual QCoro::Task<QUrl> download(Attachment attachment, std::stop_token stop = {}) = 0;
    /// Deletes the attachment with this identifier.
    virtual QCoro::Task<> deleteAttachment(QString id, std::stop_token stop = {}) = 0;
    /// The most issues that `issues` returns for a scope; nothing where there is no limit.
    virtual std::optional<qsizetype> listLimit(const IssueScope &) const { return std::nullopt; }
    /// The address of the issue's web page; absent if it cannot be built.
    virtual std::optional<QUrl> browseURL(const QString &key) const = 0;
};
