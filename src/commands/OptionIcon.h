#pragma once

#include "model/Issue.h"
#include "model/Project.h"

#include <optional>
#include <variant>

/// What a row of a picker draws at its start.
struct OptionIcon
{
    struct None
    {
        bool operator==(const None &) const = default;
    };
    /// Absent for nobody.
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
