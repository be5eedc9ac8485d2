#pragma once

#include "model/ADFNode.h"
#include "model/Attachment.h"
#include "model/Comment.h"
#include "model/Issue.h"
#include "model/IssueEdits.h"
#include "model/IssueScope.h"
#include "model/Project.h"

#include <QCoro/QCoroTask>
#include <QList>
#include <QString>
#include <QUrl>

#include <optional>
#include <stop_token>

/// All that the application asks of a back end. Every asynchronous operation may fail with a `Failure` whose text is fit
/// to be shown; results come back on the thread of the call. A requested stop makes an operation fail with `Cancelled`
/// as soon as it can. Two operations are synchronous, never fail and never touch the network: `siteName`, `browseURL`.
class IssueService
{
public:
    IssueService() = default;
    virtual ~IssueService() = default;
    IssueService(const IssueService &) = delete;
    IssueService &operator=(const IssueService &) = delete;

    /// The name of the site for display: its host, or its whole address when it has none.
    virtual QString siteName() const = 0;
    /// The signed-in account.
    virtual QCoro::Task<JiraUser> currentUser(std::stop_token stop = {}) = 0;
    /// Every project that the user can see.
    virtual QCoro::Task<QList<Project>> projects(std::stop_token stop = {}) = 0;
    /// One project with its issue types filled.
    virtual QCoro::Task<Project> project(QString key, std::stop_token stop = {}) = 0;
    /// The project's statuses across its workflows, each once.
    virtual QCoro::Task<QList<IssueStatus>> statuses(QString projectKey,
                                                     std::stop_token stop = {}) = 0;
    /// The site's priorities, in the site's order.
    virtual QCoro::Task<QList<IssuePriority>> priorities(std::stop_token stop = {}) = 0;
    /// The users who can take an issue of the project.
    virtual QCoro::Task<QList<JiraUser>> assignableUsers(QString projectKey,
                                                         std::stop_token stop = {}) = 0;
    /// The list for a scope, in the order that the scope prescribes; `hasDetails` is false on all of them.
    virtual QCoro::Task<IssueList> issues(IssueScope scope, std::stop_token stop = {}) = 0;
    /// Free-text search across the site.
    virtual QCoro::Task<IssueList> search(QString text, std::stop_token stop = {}) = 0;
    /// The full record, `hasDetails` true. An unknown key fails.
    virtual QCoro::Task<Issue> issue(QString key, std::stop_token stop = {}) = 0;
    /// The comments of the issue, in the service's order.
    virtual QCoro::Task<QList<Comment>> comments(QString key, std::stop_token stop = {}) = 0;
    /// What the workflow allows from the issue's present status.
    virtual QCoro::Task<QList<WorkflowTransition>> transitions(QString key,
                                                               std::stop_token stop = {}) = 0;
    /// Carries out the transition on the issue.
    virtual QCoro::Task<> perform(WorkflowTransition transition, QString key,
                                  std::stop_token stop = {}) = 0;
    /// Changes the one field.
    virtual QCoro::Task<> update(QString key, IssueFieldUpdate update,
                                 std::stop_token stop = {}) = 0;
    /// Assigns; an absent user unassigns.
    virtual QCoro::Task<> assign(QString key, std::optional<JiraUser> user,
                                 std::stop_token stop = {}) = 0;
    /// Adds a comment and returns it as stored.
    virtual QCoro::Task<Comment> addComment(QString key, ADFNode body, bool isInternal,
                                            std::stop_token stop = {}) = 0;
    /// Creates the issue and returns its new key.
    virtual QCoro::Task<QString> create(IssueDraft draft, std::stop_token stop = {}) = 0;
    /// Users whose name matches, for mentions and assignment.
    virtual QCoro::Task<QList<JiraUser>> searchUsers(QString query, std::stop_token stop = {}) = 0;
    /// Uploads local files in one go and returns the stored attachments.
    virtual QCoro::Task<QList<Attachment>> uploadAttachments(QString key, QList<QUrl> files,
                                                             std::stop_token stop = {}) = 0;
    /// A local file that holds the attachment's content.
    virtual QCoro::Task<QUrl> download(Attachment attachment, std::stop_token stop = {}) = 0;
    virtual QCoro::Task<> deleteAttachment(QString id, std::stop_token stop = {}) = 0;
    /// The address of the issue's web page; nothing when it cannot be made.
    virtual std::optional<QUrl> browseURL(const QString &key) const = 0;
};
