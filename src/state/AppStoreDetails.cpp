#include "async/WhileAlive.h"
#include "state/AppStore.h"
#include "state/edits/IssueUpkeep.h"

QCoro::Task<> AppStore::loadDetails(QString key, std::stop_token stop)
{
    return unlessGone(this, fetchDetails(key, stop));
}

QCoro::Task<> AppStore::fetchDetails(QString key, std::stop_token stop)
{
    Session *const session = m_session->get();
    if (!session)
        co_return;
    const auto service = session->service();
    const OpenEdits::Reading reading = session->edits.beginReading(m_context.clock.now());
    std::stop_source commentsStop;
    const std::stop_callback stopsComments(stop, [commentsStop] {
        // A copy, because the stop request may destroy this task and what it captured.
        std::stop_source(commentsStop).request_stop();
    });
    auto issueTask = settled(service, service->issue(key, stop));
    auto commentsTask = settled(service, service->comments(key, commentsStop.get_token()));
    const auto issue = co_await whileAlive(session, std::move(issueTask));
    if (!issue) {
        commentsStop.request_stop();
        co_await whileAlive(session, std::move(commentsTask));
        takeDetailsFailure(key, issue.error());
        co_return;
    }
    takeDetails(key, *issue, reading);
    const auto comments = co_await whileAlive(session, std::move(commentsTask));
    if (stop.stop_requested())
        co_return;
    // An entry is always inserted, so that the screen stops waiting.
    m_comments.insert(key, comments ? session->edits.laidOver(*comments, key, reading)
                                    : m_comments->value(key));
    co_await whileAlive(session, fetchProjectMeta(issue->projectKey));
    const OpenEdits::Reading offerReading = session->edits.beginReading(m_context.clock.now());
    const auto offered =
        co_await whileAlive(session, settled(service, service->transitions(key, stop)));
    // Transitions that were offered before a change of the status are no longer valid.
    if (offered && !session->edits.mayLackStatus(key, offerReading))
        m_transitions.insert(key, *offered);
}

void AppStore::takeDetails(const QString &key, const Issue &answer,
                           const OpenEdits::Reading &reading)
{
    const Batch batch(*this);
    const SharedIssue issue =
        (*m_session)->edits.laidOver(answer, reading, OpenEdits::Source::Issue);
    m_details.insert(key, issue);
    m_detailErrors.remove(key);
    takeFullRecord(*issue);
}

/// Replaces the issue's record in the list by the full record.
void AppStore::takeFullRecord(const Issue &issue)
{
    const auto row = derivation().rowOf(issue.key);
    if (!row)
        return showJustCreated(issue);
    const SharedIssue &listed = (*m_issues)[*row];
    const SharedIssue full = withActivityOf(issue, *listed);
    if (full == listed)
        return;
    IssueList issues = *m_issues;
    issues[*row] = full;
    m_issues.set(issues);
}

/// Shows a recently created issue in its list before a search finds it.
void AppStore::showJustCreated(const SharedIssue &issue)
{
    if (!(*m_session)->edits.isJustCreated(issue->key, m_context.clock.now()) ||
        !belongsTo(*issue, *m_scope, *m_me))
        return;
    m_issues.set(IssueList{issue} + *m_issues);
    m_scopeCache.insert(*m_scope, IndexedIssues(*m_issues));
}

void AppStore::takeDetailsFailure(const QString &key, const TaskFailure &failure)
{
    if (!failure.isCancellation && !m_details->contains(key))
        m_detailErrors.insert(key, failure.message);
}

QCoro::Task<> AppStore::loadProjectMeta(QString key)
{
    return unlessGone(this, fetchProjectMeta(key));
}

QCoro::Task<> AppStore::fetchProjectMeta(QString key)
{
    Session *const session = m_session->get();
    if (!session || session->loadedMeta.contains(key))
        co_return;
    // Noted before the requests are sent, so that a second caller does not send them again.
    session->loadedMeta.insert(key);
    const auto service = session->service();
    auto statusesTask = settled(service, service->statuses(key));
    auto usersTask = settled(service, service->assignableUsers(key));
    auto projectTask = settled(service, service->project(key));
    if (const auto statuses = co_await whileAlive(session, std::move(statusesTask)))
        m_projectStatuses.insert(key, *statuses);
    if (const auto users = co_await whileAlive(session, std::move(usersTask)))
        takeAssignables(key, *users);
    if (const auto project = co_await whileAlive(session, std::move(projectTask)))
        m_projectDetails.insert(key, *project);
}

void AppStore::takeAssignables(const QString &key, const QList<JiraUser> &users)
{
    for (const JiraUser &user : users)
        m_knownUsers.insert(user.id, user);
    m_assignables.insert(key, users);
}
