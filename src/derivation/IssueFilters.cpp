#include "derivation/IssueFilters.h"

namespace {

template <typename T>
bool allows(const QSet<T> &wanted, const T &value)
{
    return wanted.isEmpty() || wanted.contains(value);
}

} // namespace

bool IssueFilters::isEmpty() const
{
    return statuses.isEmpty() && priorities.isEmpty() && assignees.isEmpty() && labels.isEmpty() &&
           types.isEmpty();
}

bool IssueFilters::matches(const Issue &issue) const
{
    const auto carries = [&issue](const QString &label) { return issue.labels.contains(label); };
    return allows(statuses, issue.status.groupKey()) && allows(priorities, issue.priorityLevel()) &&
           allows(assignees, issue.assignee ? issue.assignee->id : QString(unassigned)) &&
           (labels.isEmpty() || std::any_of(labels.begin(), labels.end(), carries)) &&
           allows(types, issue.type ? issue.type->id : QString());
}
