#include "derivation/IssueGroup.h"

IssueGroupKind::Type IssueGroupKind::type() const
{
    if (std::holds_alternative<OfStatus>(m_value))
        return Type::Status;
    if (std::holds_alternative<OfAssignee>(m_value))
        return Type::Assignee;
    if (std::holds_alternative<OfPriority>(m_value))
        return Type::Priority;
    return std::holds_alternative<OfProject>(m_value) ? Type::Project : Type::All;
}

std::optional<IssueStatus> IssueGroupKind::asStatus() const
{
    const auto *group = std::get_if<OfStatus>(&m_value);
    return group ? std::optional(group->status) : std::nullopt;
}

std::optional<JiraUser> IssueGroupKind::asAssignee() const
{
    const auto *group = std::get_if<OfAssignee>(&m_value);
    return group ? group->user : std::nullopt;
}

std::optional<PriorityLevel> IssueGroupKind::asPriority() const
{
    const auto *group = std::get_if<OfPriority>(&m_value);
    return group ? std::optional(group->level) : std::nullopt;
}

std::optional<Project> IssueGroupKind::asProject() const
{
    const auto *group = std::get_if<OfProject>(&m_value);
    return group ? group->project : std::nullopt;
}
