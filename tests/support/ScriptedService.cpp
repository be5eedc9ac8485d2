#include "support/ScriptedService.h"

using namespace Qt::StringLiterals;

void ScriptedService::cancelPending()
{
    cancelAll(currentUserCalls, projectsCalls, projectCalls, statusesCalls, prioritiesCalls,
              assignableUsersCalls, issuesCalls, searchCalls, issueCalls, commentsCalls,
              transitionsCalls, performCalls, updateCalls, assignCalls, addCommentCalls,
              createCalls, searchUsersCalls, uploadAttachmentsCalls, downloadCalls,
              deleteAttachmentCalls);
}

QCoro::Task<JiraUser> ScriptedService::currentUser(std::stop_token stop)
{
    return currentUserCalls.call(std::move(stop));
}

QCoro::Task<QList<Project>> ScriptedService::projects(std::stop_token stop)
{
    return projectsCalls.call(std::move(stop));
}

QCoro::Task<Project> ScriptedService::project(QString key, std::stop_token stop)
{
    return projectCalls.call(std::move(stop), std::move(key));
}

QCoro::Task<QList<IssueStatus>> ScriptedService::statuses(QString projectKey, std::stop_token stop)
{
    return statusesCalls.call(std::move(stop), std::move(projectKey));
}

QCoro::Task<QList<IssuePriority>> ScriptedService::priorities(std::stop_token stop)
{
    return prioritiesCalls.call(std::move(stop));
}

QCoro::Task<QList<JiraUser>> ScriptedService::assignableUsers(QString projectKey,
                                                              std::stop_token stop)
{
    return assignableUsersCalls.call(std::move(stop), std::move(projectKey));
}

QCoro::Task<IssueList> ScriptedService::issues(IssueScope scope, std::stop_token stop)
{
    return issuesCalls.call(std::move(stop), std::move(scope));
}

QCoro::Task<IssueList> ScriptedService::search(QString text, std::stop_token stop)
{
    return searchCalls.call(std::move(stop), std::move(text));
}

QCoro::Task<Issue> ScriptedService::issue(QString key, std::stop_token stop)
{
    return issueCalls.call(std::move(stop), std::move(key));
}

QCoro::Task<QList<Comment>> ScriptedService::comments(QString key, std::stop_token stop)
{
    return commentsCalls.call(std::move(stop), std::move(key));
}

QCoro::Task<QList<WorkflowTransition>> ScriptedService::transitions(QString key,
                                                                    std::stop_token stop)
{
    return transitionsCalls.call(std::move(stop), std::move(key));
}

QCoro::Task<> ScriptedService::perform(WorkflowTransition transition, QString key,
                                       std::stop_token stop)
{
    return performCalls.call(std::move(stop), std::move(transition), std::move(key));
}

QCoro::Task<> ScriptedService::update(QString key, IssueFieldUpdate update, std::stop_token stop)
{
    return updateCalls.call(std::move(stop), std::move(key), std::move(update));
}

QCoro::Task<> ScriptedService::assign(QString key, std::optional<JiraUser> user,
                                      std::stop_token stop)
{
    return assignCalls.call(std::move(stop), std::move(key), std::move(user));
}

QCoro::Task<Comment> ScriptedService::addComment(QString key, ADFNode body, bool isInternal,
                                                 std::stop_token stop)
{
    return addCommentCalls.call(std::move(stop), std::move(key), std::move(body), isInternal);
}

QCoro::Task<QString> ScriptedService::create(IssueDraft draft, std::stop_token stop)
{
    return createCalls.call(std::move(stop), std::move(draft));
}

QCoro::Task<QList<JiraUser>> ScriptedService::searchUsers(QString query, std::stop_token stop)
{
    return searchUsersCalls.call(std::move(stop), std::move(query));
}

QCoro::Task<QList<Attachment>> ScriptedService::uploadAttachments(QString key, QList<QUrl> files,
                                                                  std::stop_token stop,
                                                                  UploadObserver observer)
{
    uploadObservers.append(std::move(observer));
    return uploadAttachmentsCalls.call(std::move(stop), std::move(key), std::move(files));
}

QCoro::Task<QUrl> ScriptedService::download(Attachment attachment, std::stop_token stop)
{
    return downloadCalls.call(std::move(stop), std::move(attachment));
}

QCoro::Task<> ScriptedService::deleteAttachment(QString id, std::stop_token stop)
{
    return deleteAttachmentCalls.call(std::move(stop), std::move(id));
}

std::optional<QUrl> ScriptedService::browseURL(const QString &key) const
{
    return QUrl(u"https://%1/browse/%2"_s.arg(site, key));
}
