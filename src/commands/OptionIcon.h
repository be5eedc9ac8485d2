#pragma once

#include "model/Issue.h"
#include "model/Project.h"

#include <optional>
#include <variant>

/// The icon at the start of a picker row.
struct OptionIcon
{
    struct None
    {
        bool operator==(const None &) const = default;
    };
    /// The user is absent for the row that unassigns.
    struct User
    {
        std::optional<JiraUser> user;
        bool operator==(const User &) const = default;
    };
    /// A dot in the label's colour.
    struct Label
    {
        QString name;
        bool operator==(const Label &) const = default;
    };
    /// A symbol by its name.
    struct Symbol
    {
        QString name;
        bool operator==(const Symbol &) const = default;
    };

    std::variant<None, IssueStatus, PriorityLevel, User, Label, IssueType, Project, Symbol> value;

    bool operator==(const OptionIcon &) const = default;
};
