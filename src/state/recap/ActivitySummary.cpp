#include "state/recap/ActivitySummary.h"

#include <algorithm>

namespace {

bool isCreation(const ActivityEvent &event)
{
    return event.isCreation();
}

bool isMove(const ActivityEvent &event)
{
    return event.statusChange() != nullptr;
}

/// Whether a status means that an issue is done, by the name that a history states. Histories repeat a few names, and
/// each is looked up once.
class DoneStatuses
{
public:
    explicit DoneStatuses(const StatusLookup &statuses) : m_statuses(statuses) {}

    bool contains(const QString &name, const QString &projectKey)
    {
        const std::pair key(projectKey, name);
        const auto known = m_known.constFind(key);
        if (known != m_known.cend())
            return *known;
        const IssueStatus status = m_statuses.named(name, projectKey);
        return *m_known.insert(key, status.category() == StatusCategory::Done);
    }

private:
    const StatusLookup &m_statuses;
    QHash<std::pair<QString, QString>, bool> m_known;
};

bool isCompletion(const ActivityEvent &event, const QString &projectKey, DoneStatuses &done)
{
    const auto *change = event.statusChange();
    return change && done.contains(change->to, projectKey);
}

void addContributors(const QList<ActivityEvent> &events, QSet<QString> &contributors)
{
    for (const ActivityEvent &event : events) {
        if (event.author)
            contributors.insert(event.author->name);
    }
}

} // namespace

ActivitySummary activitySummary(const IssueList &visibleIssues, const StatusLookup &statuses)
{
    ActivitySummary summary;
    DoneStatuses done(statuses);
    QSet<QString> createdKeys;
    for (const SharedIssue &issue : visibleIssues) {
        const QList<ActivityEvent> &events = issue->activity;
        addContributors(events, summary.contributors);
        if (std::ranges::any_of(events, isCreation) && !createdKeys.contains(issue->key)) {
            createdKeys.insert(issue->key);
            summary.created.append(issue);
        }
        const bool isCompleted = std::ranges::any_of(events, [&](const ActivityEvent &event) {
            return isCompletion(event, issue->projectKey, done);
        });
        if (isCompleted)
            summary.completed.append(issue);
        else if (std::ranges::any_of(events, isMove))
            summary.progressed.append(issue);
    }
    return summary;
}
