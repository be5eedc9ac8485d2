#include "state/edits/TransitionChoice.h"

#include <algorithm>

std::optional<WorkflowTransition> transitionTo(const IssueStatus &status,
                                               const QList<WorkflowTransition> &offered)
{
    const auto reachesIt = [&](const WorkflowTransition &transition) {
        return transition.to.id() == status.id();
    };
    const auto reachesItsLike = [&](const WorkflowTransition &transition) {
        return transition.to.groupKey() == status.groupKey();
    };
    auto found = std::ranges::find_if(offered, reachesIt);
    if (found == offered.end())
        found = std::ranges::find_if(offered, reachesItsLike);
    return found == offered.end() ? std::nullopt : std::optional(*found);
}
