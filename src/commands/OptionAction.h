#pragma once

#include "commands/Command.h"
#include "model/IssuePriority.h"
#include "model/IssueScope.h"
#include "model/IssueStatus.h"
#include "model/JiraUser.h"

#include <QStringList>

#include <optional>
#include <variant>

/// The action of a picker row, as a value that the store carries out. It is a command, or the choice of a value for
/// which there is no command. `keys` are the issues that it applies to.
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
    /// An absent user unassigns the issues.
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
    /// Appends the label to the labels of the issues that do not have it.
    struct AddLabel
    {
        QString label;
        QStringList keys;
        bool operator==(const AddLabel &) const = default;
    };
    /// Runs a command. Without keys, it applies to the issues that are chosen in the main window.
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
