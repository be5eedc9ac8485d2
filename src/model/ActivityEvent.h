#pragma once

#include "model/JiraUser.h"

#include <QDateTime>
#include <QString>

#include <optional>
#include <variant>

/// One change of one issue, as the history reports it.
struct ActivityEvent
{
    /// The status changed. Both names are spelled as in the history.
    struct StatusChanged
    {
        std::optional<QString> from;
        QString to;

        bool operator==(const StatusChanged &) const = default;
    };
    /// The assignee changed; `to` is a display name, absent when the issue was unassigned.
    struct AssigneeChanged
    {
        std::optional<QString> to;

        bool operator==(const AssigneeChanged &) const = default;
    };
    struct Created
    {
        bool operator==(const Created &) const = default;
    };
    using Kind = std::variant<StatusChanged, AssigneeChanged, Created>;

    QDateTime date;
    std::optional<JiraUser> author;
    Kind kind = Created{};

    const StatusChanged *statusChange() const { return std::get_if<StatusChanged>(&kind); }
    const AssigneeChanged *assigneeChange() const { return std::get_if<AssigneeChanged>(&kind); }
    bool isCreation() const { return std::holds_alternative<Created>(kind); }

    bool operator==(const ActivityEvent &) const = default;
};
