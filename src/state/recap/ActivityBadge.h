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
    /// The name of the new status; empty for other events.
    QString label;
    /// The event's day and short month.
    QString dateText;
    /// A description of the event with its author and time, and the number of other events.
    QString tooltip;

    bool operator==(const ActivityBadge &) const = default;
};

/// The badge of an issue; nothing when it has no events. `usersByName` is used to find the pictures of new assignees,
/// because the history contains only their display names.
std::optional<ActivityBadge> activityBadge(const Issue &issue, const StatusLookup &statuses,
                                           const QHash<QString, JiraUser> &usersByName,
                                           const UserCalendar &calendar);

/// The users by display name; if several users have the same name, the first.
QHash<QString, JiraUser> usersByName(const QList<JiraUser> &users);
