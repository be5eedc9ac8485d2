#include "state/edits/IssueUpkeep.h"

#include <algorithm>
#include <tuple>
#include <vector>

namespace {

/// Where an open issue stands by its status; the closed categories are never asked for.
int rank(StatusCategory category)
{
    switch (category) {
    case StatusCategory::InProgress:
        return 0;
    case StatusCategory::Todo:
        return 1;
    case StatusCategory::Backlog:
        return 2;
    case StatusCategory::Done:
        return 3;
    case StatusCategory::Cancelled:
        return 4;
    }
    Q_UNREACHABLE();
}

/// What open issues are sorted by; the position keeps equals in their order.
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

IssueList openIssues(const IssueList &issues)
{
    std::vector<Urgency> order;
    for (qsizetype i = 0; i < issues.size(); ++i) {
        const StatusCategory category = issues[i]->status.category();
        if (!isClosed(category))
            order.emplace_back(rank(category), issues[i]->priorityLevel(), i);
    }
    std::ranges::sort(order);
    IssueList open;
    for (const auto &[statusRank, level, position] : order)
        open += issues[position];
    return open;
}
