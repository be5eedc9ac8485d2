#pragma once

#include "model/Issue.h"

#include <QLatin1StringView>
#include <QSet>
#include <QString>

/// What the filter menus have picked. An empty set sets no condition.
struct IssueFilters
{
    /// What stands in `assignees` for the issues of nobody.
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
    /// True if the issue meets all conditions; of several labels one is enough.
    bool matches(const Issue &issue) const;

    bool operator==(const IssueFilters &) const = default;
};
