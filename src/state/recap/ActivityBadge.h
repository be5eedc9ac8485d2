#pragma once

#include "model/dates/UserCalendar.h"
#include "state/recap/StatusLookup.h"

#include <QHash>

#include <optional>
#include <variant>

/// The latest event of an issue, as its row in a recap shows it.
struct ActivityBadge
{
    struct Symbol
    {
        QString name;
        bool operator==(const Symbol &) const = default;
    };
    /// A status to draw, the picture of a person, or a named symbol.
    using Icon = std::variant<IssueStatus, JiraUser, Symbol>;

    Icon icon;
    /// What the status reached is called; empty for other events.
    QString label;
    /// The event's day and short month.
    QString dateText;
    /// What happened, by whom and when, and how many other events there are.
    QString tooltip;

    bool operator==(const ActivityBadge &) const = default;
};

/// The badge of an issue; nothing when it has no events. `usersByName` finds the pictures of new assignees, whom the
/// history knows by their display names only.
std::optional<ActivityBadge> activityBadge(const Issue &issue, const StatusLookup &statuses,
                                           const QHash<QString, JiraUser> &usersByName,
                                           const UserCalendar &calendar);

/// The users by their display names; of users with one name the first.
QHash<QString, JiraUser> usersByName(const QList<JiraUser> &users);
