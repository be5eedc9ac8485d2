#include "async/WhileAlive.h"
#include "state/AppStore.h"
#include "state/edits/DefaultProject.h"
#include "state/edits/DocumentComposing.h"
#include "state/edits/MentionCandidates.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const auto LastProjectKey = u"lastProject"_s;

/// A refresh may have brought the posted comment before its response arrived.
QList<Comment> withPosted(const QList<Comment> &comments, const Comment &posted)
{
    const bool isThere =
        std::ranges::any_of(comments, [&](const Comment &one) { return one.id == posted.id; });
    return isThere ? comments : comments + QList{posted};
}

} // namespace

QCoro::Task<bool> AppStore::addComment(QString markdown, QString key, CommentAudience audience,
                                       QList<JiraUser> mentions)
{
    return unlessGone(this, postComment(markdown, key, audience, mentions), false);
}

QCoro::Task<bool> AppStore::postComment(QString markdown, QString key, CommentAudience audience,
                                        QList<JiraUser> mentions)
{
    Session *const session = m_session->get();
    if (!session)
        co_return false;
    const auto service = session->service();
    const PendingWrites::Token write = m_writes.begin();
    const ADFNode body = composedDocument(markdown, mentions + mentionCandidates(key));
    const bool isInternal = audience == CommentAudience::Agents;
    const auto comment =
        co_await whileAlive(session, settled(service, service->addComment(key, body, isInternal)));
    if (!comment) {
        reportRefusal(comment.error());
        co_return false;
    }
    session->edits.noteComment(key, *comment);
    m_comments.insert(key, withPosted(m_comments->value(key), *comment));
    co_return true;
}

QCoro::Task<std::optional<QString>> AppStore::create(IssueDraft draft)
{
    return unlessGone(this, createIssue(draft), std::optional<QString>());
}

QCoro::Task<std::optional<QString>> AppStore::createIssue(IssueDraft draft)
{
    Session *const session = m_session->get();
    if (!session)
        co_return std::nullopt;
    const auto service = session->service();
    PendingWrites::Token write = m_writes.begin();
    const auto created = co_await whileAlive(session, settled(service, service->create(draft)));
    write.reset();
    if (!created) {
        reportRefusal(created.error());
        co_return std::nullopt;
    }
    session->edits.noteCreated(*created, m_context.clock.now());
    m_context.preferences.setText(LastProjectKey, draft.projectKey);
    toast(*created + u" créé"_s, u"checkmark.circle.fill"_s);
    co_await whileAlive(session, reloadList(AskedBy::Program));
    co_await whileAlive(session, reloadMyIssues());
    setSelection({*created, *m_checked, *created});
    co_return *created;
}

std::optional<QString> AppStore::defaultProjectKey() const
{
    return ::defaultProjectKey(*m_createProjectKey, m_context.preferences.text(LastProjectKey),
                               *m_projects);
}

QList<JiraUser> AppStore::mentionCandidates(const std::optional<QString> &issueKey,
                                            const std::optional<QString> &projectKey) const
{
    MentionSources sources{.assignables = {},
                           .availableAssignees = derivation().menus().assignees,
                           .knownUsers = m_knownUsers,
                           .me = *m_me};
    if (issueKey) {
        sources.issue = issue(*issueKey);
        sources.comments = m_comments->value(*issueKey);
    }
    if (projectKey)
        sources.assignables = m_assignables->value(*projectKey);
    else if (sources.issue)
        sources.assignables = m_assignables->value((*sources.issue)->projectKey);
    return ::mentionCandidates(sources);
}

QCoro::Task<QList<JiraUser>> AppStore::searchUsers(QString query, std::stop_token stop)
{
    return unlessGone(this, foundUsers(query, stop), QList<JiraUser>());
}

QCoro::Task<QList<JiraUser>> AppStore::foundUsers(QString query, std::stop_token stop)
{
    Session *const session = m_session->get();
    if (!session)
        co_return QList<JiraUser>();
    const auto service = session->service();
    const auto found =
        co_await whileAlive(session, settled(service, service->searchUsers(query, stop)));
    if (!found)
        co_return QList<JiraUser>();
    for (const JiraUser &user : *found)
        m_knownUsers.insert(user.id, user);
    co_return *found;
}
