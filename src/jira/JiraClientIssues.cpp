#include "jira/AttachmentTransfer.h"
#include "jira/JiraClient.h"
#include "jira/SearchPages.h"
#include "jira/SiteAnswers.h"
#include "jira/SiteRequests.h"
#include "jira/wire/CreatedIssueDTO.h"
#include "jira/wire/Models.h"
#include "jira/wire/TransitionsDTO.h"

namespace {

/// Sends a write whose response body is not needed.
QCoro::Task<> done(SiteConnectionPtr connection, JiraRequest request, std::stop_token stop)
{
    co_await write(std::move(connection), std::move(request), std::move(stop));
}

QCoro::Task<Comment> addedComment(SiteConnectionPtr connection, JiraRequest request,
                                  CommentAudience audience, QDateTime now, std::stop_token stop)
{
    QByteArray body = co_await write(std::move(connection), std::move(request), stop);
    auto mapping = [audience, now](const CommentDTO &comment) {
        return SiteAnswers::storedComment(comment, audience, now);
    };
    co_return co_await mapped<CommentDTO>(std::move(body), std::move(mapping), std::move(stop));
}

QCoro::Task<QString> createdKey(SiteConnectionPtr connection, JiraRequest request,
                                std::stop_token stop)
{
    QByteArray body = co_await write(std::move(connection), std::move(request), stop);
    auto mapping = [](const CreatedIssueDTO &issue) { return issue.key; };
    co_return co_await mapped<CreatedIssueDTO>(std::move(body), std::move(mapping),
                                               std::move(stop));
}

} // namespace

QCoro::Task<Issue> JiraClient::issue(QString key, std::stop_token stop)
{
    return fullIssue(m_connection, std::move(key), m_clock.now(), std::move(stop));
}

QCoro::Task<QList<Comment>> JiraClient::comments(QString key, std::stop_token stop)
{
    return readMapped<CommentsDTO>(
        m_connection, SiteRequests::comments(key),
        [now = m_clock.now()](const CommentsDTO &page) { return modelsOf(page.comments, now); },
        std::move(stop));
}

QCoro::Task<QList<WorkflowTransition>> JiraClient::transitions(QString key, std::stop_token stop)
{
    return readMapped<TransitionsDTO>(
        m_connection, SiteRequests::transitions(key),
        [](const TransitionsDTO &answer) { return modelsOf(answer.transitions); }, std::move(stop));
}

QCoro::Task<> JiraClient::perform(WorkflowTransition transition, QString key, std::stop_token stop)
{
    return done(m_connection, SiteRequests::perform(transition, key), std::move(stop));
}

QCoro::Task<> JiraClient::update(QString key, IssueFieldUpdate update, std::stop_token stop)
{
    return done(m_connection, SiteRequests::update(key, update), std::move(stop));
}

QCoro::Task<> JiraClient::assign(QString key, std::optional<JiraUser> user, std::stop_token stop)
{
    return done(m_connection, SiteRequests::assign(key, user), std::move(stop));
}

QCoro::Task<Comment> JiraClient::addComment(QString key, ADFNode body, bool isInternal,
                                            std::stop_token stop)
{
    const auto audience = isInternal ? CommentAudience::Agents : CommentAudience::Everyone;
    return addedComment(m_connection, SiteRequests::addComment(key, body, audience), audience,
                        m_clock.now(), std::move(stop));
}

QCoro::Task<QString> JiraClient::create(IssueDraft draft, std::stop_token stop)
{
    return createdKey(m_connection, SiteRequests::create(draft), std::move(stop));
}

QCoro::Task<QList<Attachment>> JiraClient::uploadAttachments(QString key, QList<QUrl> files,
                                                             std::stop_token stop,
                                                             UploadObserver observer)
{
    return uploaded(m_connection, std::move(key), std::move(files), m_clock.now(), std::move(stop),
                    std::move(observer));
}

QCoro::Task<QUrl> JiraClient::download(Attachment attachment, std::stop_token stop)
{
    return downloaded(m_connection, std::move(attachment), m_attachmentFolder, std::move(stop));
}

QCoro::Task<> JiraClient::deleteAttachment(QString id, std::stop_token stop)
{
    return done(m_connection, SiteRequests::deleteAttachment(id), std::move(stop));
}
