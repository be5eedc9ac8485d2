#pragma once

#include "model/IssuePriority.h"
#include "model/IssueStatus.h"
#include "model/JiraUser.h"

#include <QStringList>

#include <optional>
#include <variant>

/// What picking a row does, as a value: the store carries it out. `keys` are the issues it applies to.
struct OptionAction
{
    struct None
    {
        bool operator==(const None &) const = default;
    };
    struct SetStatus
    {
        IssueStatus status;
        QStringList keys;
        bool operator==(const SetStatus &) const = default;
    };
    struct SetPriority
    {
        IssuePriority priority;
        QStringList keys;
        bool operator==(const SetPriority &) const = default;
    };
    /// Nobody unassigns.
    struct Assign
    {
        std::optional<JiraUser> user;
        QStringList keys;
        bool operator==(const Assign &) const = default;
    };
    struct ToggleLabel
    {
        QString label;
        QStringList keys;
        bool operator==(const ToggleLabel &) const = default;
    };

    std::variant<None, SetStatus, SetPriority, Assign, ToggleLabel> value;

    bool operator==(const OptionAction &) const = default;
};
