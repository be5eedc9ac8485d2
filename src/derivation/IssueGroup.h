#pragma once

#include "model/Issue.h"
#include "model/Project.h"

#include <QList>
#include <QString>

#include <optional>
#include <variant>

/// What the issues of a group have in common. This determines the group's icon and the effect of a drop on it.
class IssueGroupKind
{
public:
    /// The alternatives, in their order.
    enum class Type { Status, Assignee, Priority, Project, All };

    /// Everything, ungrouped.
    IssueGroupKind() = default;

    static IssueGroupKind status(IssueStatus status)
    {
        return IssueGroupKind(OfStatus{std::move(status)});
    }
    /// The issues of a person, or the unassigned issues.
    static IssueGroupKind assignee(std::optional<JiraUser> user)
    {
        return IssueGroupKind(OfAssignee{std::move(user)});
    }
    static IssueGroupKind priority(PriorityLevel level)
    {
        return IssueGroupKind(OfPriority{level});
    }
    /// The issues of a project; nothing for a project that is not known.
    static IssueGroupKind project(std::optional<Project> project)
    {
        return IssueGroupKind(OfProject{std::move(project)});
    }
    static IssueGroupKind all() { return {}; }

    Type type() const;
    /// The status, of a status group; nothing otherwise.
    std::optional<IssueStatus> asStatus() const;
    /// The person, of an assignee group that has one; nothing otherwise.
    std::optional<JiraUser> asAssignee() const;
    /// The level, of a priority group; nothing otherwise.
    std::optional<PriorityLevel> asPriority() const;
    /// The project, of a project group that knows it; nothing otherwise.
    std::optional<Project> asProject() const;

    bool operator==(const IssueGroupKind &) const = default;

private:
    struct OfStatus
    {
        IssueStatus status;
        bool operator==(const OfStatus &) const = default;
    };
    struct OfAssignee
    {
        std::optional<JiraUser> user;
        bool operator==(const OfAssignee &) const = default;
    };
    struct OfPriority
    {
        PriorityLevel level = PriorityLevel::None;
        bool operator==(const OfPriority &) const = default;
    };
    struct OfProject
    {
        std::optional<Project> project;
        bool operator==(const OfProject &) const = default;
    };
    struct OfAll
    {
        bool operator==(const OfAll &) const = default;
    };
    using Value = std::variant<OfAll, OfStatus, OfAssignee, OfPriority, OfProject>;

    explicit IssueGroupKind(Value value) : m_value(std::move(value)) {}

    Value m_value;
};

/// One section of a list or one column of a board.
struct IssueGroup
{
    using Kind = IssueGroupKind;

    /// Stable; the set of collapsed groups consists of these ids: "s:", "a:", "p:" or "j:" and a key, or "all".
    QString id;
    /// The text of the header.
    QString title;
    Kind kind;
    /// In the order of the visible issues.
    IssueList issues;

    bool operator==(const IssueGroup &) const = default;
};
