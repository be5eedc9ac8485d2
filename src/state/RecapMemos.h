#pragma once

#include "derivation/Memo.h"
#include "state/recap/ActivityBadge.h"
#include "state/recap/ActivitySummary.h"

/// The cached values of a recap. Each is computed when it is first read, and again only when its sources have changed,
/// so that other reads do not iterate over issues or events.
struct RecapMemos
{
    /// From the statuses of the projects and of the issues.
    Memo<StatusLookup> statuses{"recap statuses"};
    /// From the visible issues and the statuses. Computing it iterates over all events.
    Memo<ActivitySummary> summary{"recap summary"};
    /// From the known users: the users by name, for the badges of new assignees.
    Memo<QHash<QString, JiraUser>> users{"recap users"};
};
