#pragma once

#include "state/recap/StatusLookup.h"

#include <QSet>

/// What happened to the issues of a recap.
struct ActivitySummary
{
    /// Reached a status that is done.
    IssueList completed;
    /// Changed their status, but never to one that is done.
    IssueList progressed;
    /// Were created; such an issue can stand in one of the other lists as well.
    IssueList created;
    /// The display names of all who did something.
    QSet<QString> contributors;

    bool operator==(const ActivitySummary &) const = default;
};

/// The summary of the issues shown, each list in their order.
ActivitySummary activitySummary(const IssueList &visibleIssues, const StatusLookup &statuses);
