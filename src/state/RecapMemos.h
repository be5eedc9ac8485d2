#pragma once

#include "derivation/Memo.h"
#include "state/recap/ActivityBadge.h"
#include "state/recap/ActivitySummary.h"

/// What the store keeps of a recap: each part is computed when it is read and again only when its sources have changed,
/// so that a read without a change costs no pass over issues or events.
struct RecapMemos
{
    /// From the statuses of the projects and of the issues.
    Memo<StatusLookup> statuses;
    /// From the visible issues and the statuses: a pass over all events.
    Memo<ActivitySummary> summary;
    /// From the people met: who is found for the badge of a new assignee.
    Memo<QHash<QString, JiraUser>> users;
};
