#pragma once

#include "model/Issue.h"

#include <QLatin1StringView>
#include <QSet>
#include <QString>

/// The values chosen in the filter menus. An empty set means no condition.
struct IssueFilters
{
    /// The value in `assignees` that means unassigned issues.
    static constexpr QLatin1StringView unassigned{"__unassigned__"};

    /// `groupKey`s of statuses.
    QSet<QString> statuses;
    QSet<PriorityLevel> priorities;
    /// Ids of users, and `unassigned`.
    QSet<QString> assignees;
    QSet<QString> labels;
    /// Ids of issue types; the empty text lets issues without a type pass.
    QSet<QString> types;

    bool isEmpty() const;
    /// True if the issue meets all conditions; if several labels are chosen, the issue needs only one of them.
    bool matches(const Issue &issue) const;

    bool operator==(const IssueFilters &) const = default;
};
