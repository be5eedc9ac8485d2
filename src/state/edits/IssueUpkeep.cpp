#include "state/edits/IssueUpkeep.h"

#include "derivation/IssueDerivationOrder.h"

#include <QSet>

#include <algorithm>
#include <tuple>
#include <vector>

namespace {

/// The sort key of open issues. The position makes the sort stable.
using Urgency = std::tuple<int, PriorityLevel, qsizetype>;

} // namespace

Issue mergedIntoDetails(const Issue &listed, const Issue &known)
{
    Issue merged = listed;
    merged.description = known.description;
    merged.hasDetails = known.hasDetails;
    merged.attachments = known.attachments;
    if (listed.subtasks.isEmpty())
        merged.subtasks = known.subtasks;
    return merged;
}

Issue withActivityOf(Issue fetched, const Issue &row)
{
    fetched.activity = row.activity;
    return fetched;
}

IssueList withoutRepeatedKeys(const IssueList &issues)
{
    QSet<QString> met;
    met.reserve(issues.size());
    IssueList distinct;
    distinct.reserve(issues.size());
    for (const SharedIssue &issue : issues) {
        const qsizetype before = met.size();
        met.insert(issue->key);
        if (met.size() > before)
            distinct += issue;
    }
    return distinct;
}

bool belongsTo(const Issue &issue, const IssueScope &scope, const std::optional<JiraUser> &me)
{
    const auto isMe = [&](const std::optional<JiraUser> &person) {
        return person && me && person->id == me->id;
    };
    if (const auto *project = scope.asProject())
        return project->view == ProjectView::All && project->key == issue.projectKey;
    if (scope == IssueScope::myIssues())
        return isMe(issue.assignee);
    return scope == IssueScope::reported() && isMe(issue.reporter);
}

IssueList openIssues(const IssueList &issues)
{
    std::vector<Urgency> order;
    for (qsizetype i = 0; i < issues.size(); ++i) {
        const StatusCategory category = issues[i]->status.category();
        if (!isClosed(category))
            order.emplace_back(workRank(category), issues[i]->priorityLevel(), i);
    }
    std::ranges::sort(order);
    IssueList open;
    for (const auto &[statusRank, level, position] : order)
        open += issues[position];
    return open;
}
