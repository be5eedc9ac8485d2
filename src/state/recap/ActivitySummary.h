#pragma once

#include "state/recap/StatusLookup.h"

#include <QSet>

/// What happened to the issues of a recap.
struct ActivitySummary
{
    /// The issues that reached a status of the category done.
    IssueList completed;
    /// The issues that changed their status, but never to one of the category done.
    IssueList progressed;
    /// The issues that were created. They can also be in one of the other lists.
    IssueList created;
    /// The display names of all authors of events.
    QSet<QString> contributors;

    bool operator==(const ActivitySummary &) const = default;
};

/// The summary of the visible issues. Each list keeps their order.
ActivitySummary activitySummary(const IssueList &visibleIssues, const StatusLookup &statuses);
