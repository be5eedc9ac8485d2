#include "async/WhileAlive.h"
#include "state/AppStore.h"
#include "state/edits/IssueUpkeep.h"

QCoro::Task<> AppStore::loadDetails(QString key, std::stop_token stop)
{
    const auto service = *m_service;
    if (!service)
        co_return;
    std::stop_source commentsStop;
    const std::stop_callback stopsComments(stop, [commentsStop] {
        // A copy: the stop may end this task, and with it what was captured.
        // NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
        const auto kept = commentsStop;
        kept.request_stop();
    });
    auto issueTask = settled(service, service->issue(key, stop));
    auto commentsTask = settled(service, service->comments(key, commentsStop.get_token()));
    const auto issue = co_await whileAlive(this, std::move(issueTask));
    if (!issue) {
        commentsStop.request_stop();
        co_await whileAlive(this, std::move(commentsTask));
        takeDetailsFailure(key, issue.error());
        co_return;
    }
    takeDetails(key, *issue);
    const auto comments = co_await whileAlive(this, std::move(commentsTask));
    if (stop.stop_requested())
        co_return;
    // An entry of some kind in any case, so that the screen can end its wait.
    m_comments.insert(key, comments.value_or(m_comments->value(key)));
    co_await whileAlive(this, loadProjectMeta(issue->projectKey));
    const auto transitions =
        co_await whileAlive(this, settled(service, service->transitions(key, stop)));
    if (transitions)
        m_transitions.insert(key, *transitions);
}

void AppStore::takeDetails(const QString &key, const Issue &issue)
{
    const Batch batch(*this);
    m_details.insert(key, issue);
    m_detailErrors.remove(key);
    takeFullRecord(issue);
}

/// The full record in its issue's place in the list.
void AppStore::takeFullRecord(const Issue &issue)
{
    const auto row = derivation().rowOf(issue.key);
    if (!row)
        return;
    const SharedIssue &listed = (*m_issues)[*row];
    const SharedIssue full = withActivityOf(issue, *listed);
    if (full == listed)
        return;
    if (full->projectKey == listed->projectKey)
        return replaceListed({{quint32(*row), full}}, InCache::Stay);
    IssueList issues = *m_issues;
    issues[*row] = full;
    m_issues.set(issues);
}

void AppStore::takeDetailsFailure(const QString &key, const TaskFailure &failure)
{
    if (!failure.isCancellation && !m_details->contains(key))
        m_detailErrors.insert(key, failure.message);
}

QCoro::Task<> AppStore::loadProjectMeta(QString key)
{
    const auto service = *m_service;
    if (!service || m_loadedMeta.contains(key))
        co_return;
    // Before anything is fetched, so that a second caller does not fetch again.
    m_loadedMeta.insert(key);
    auto statusesTask = settled(service, service->statuses(key));
    auto usersTask = settled(service, service->assignableUsers(key));
    auto projectTask = settled(service, service->project(key));
    if (const auto statuses = co_await whileAlive(this, std::move(statusesTask)))
        m_projectStatuses.insert(key, *statuses);
    if (const auto users = co_await whileAlive(this, std::move(usersTask)))
        takeAssignables(key, *users);
    if (const auto project = co_await whileAlive(this, std::move(projectTask)))
        m_projectDetails.insert(key, *project);
}

void AppStore::takeAssignables(const QString &key, const QList<JiraUser> &users)
{
    for (const JiraUser &user : users)
        m_knownUsers.insert(user.id, user);
    m_assignables.insert(key, users);
}
