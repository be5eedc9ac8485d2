#pragma once

#include "jira/wire/WireMember.h"
#include "model/IssueType.h"

#include <QString>

#include <optional>
#include <tuple>

/// A type of issue, as Jira sends one.
struct IssueTypeDTO
{
    QString id;
    QString name;
    std::optional<bool> subtask;
    std::optional<qint64> hierarchyLevel;

    /// Without `subtask` no sub-task type; without a level the ordinary one.
    IssueType model() const;

    static constexpr auto wireMembers()
    {
        return std::tuple(WireMember{"id", &IssueTypeDTO::id},
                          WireMember{"name", &IssueTypeDTO::name},
                          WireMember{"subtask", &IssueTypeDTO::subtask},
                          WireMember{"hierarchyLevel", &IssueTypeDTO::hierarchyLevel});
    }
};
