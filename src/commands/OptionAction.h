#pragma once

#include "commands/Command.h"
#include "model/IssuePriority.h"
#include "model/IssueScope.h"
#include "model/IssueStatus.h"
#include "model/JiraUser.h"

#include <QStringList>

#include <optional>
#include <variant>

/// What picking a row does, as a value: the store carries it out. It is a command, or the choice of a value that no
/// command names. `keys` are the issues it applies to.
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
    /// Adds the label, behind their own, to the issues that have it not.
    struct AddLabel
    {
        QString label;
        QStringList keys;
        bool operator==(const AddLabel &) const = default;
    };
    /// A command. Without keys it means what is chosen in the main window.
    struct RunCommand
    {
        Command command;
        std::optional<QStringList> keys;
        bool operator==(const RunCommand &) const = default;
    };
    struct Select
    {
        IssueScope scope;
        bool operator==(const Select &) const = default;
    };

    std::variant<None, SetStatus, SetPriority, Assign, ToggleLabel, AddLabel, RunCommand, Select>
        value;

    bool operator==(const OptionAction &) const = default;
};
