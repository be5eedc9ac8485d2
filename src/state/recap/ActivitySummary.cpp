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

bool isCompletion(const ActivityEvent &event, const QString &projectKey,
                  const StatusLookup &statuses)
{
    const auto *change = event.statusChange();
    return change && statuses.named(change->to, projectKey).category() == StatusCategory::Done;
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
    QSet<QString> createdKeys;
    for (const SharedIssue &issue : visibleIssues) {
        const QList<ActivityEvent> &events = issue->activity;
        addContributors(events, summary.contributors);
        if (std::ranges::any_of(events, isCreation) && !createdKeys.contains(issue->key)) {
            createdKeys.insert(issue->key);
            summary.created.append(issue);
        }
        const bool isCompleted = std::ranges::any_of(events, [&](const ActivityEvent &event) {
            return isCompletion(event, issue->projectKey, statuses);
        });
        if (isCompleted)
            summary.completed.append(issue);
        else if (std::ranges::any_of(events, isMove))
            summary.progressed.append(issue);
    }
    return summary;
}
