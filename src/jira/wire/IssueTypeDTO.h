#pragma once

#include "jira/wire/WireMember.h"
#include "model/IssueType.h"

#include <QString>

#include <optional>
#include <tuple>

/// An issue type in Jira's JSON.
struct IssueTypeDTO
{
    QString id;
    QString name;
    std::optional<bool> subtask;
    std::optional<qint64> hierarchyLevel;

    /// Converts to a domain record. If `subtask` is missing, the type is not a sub-task; if the level is missing, it is
    /// 0.
    IssueType model() const;

    static constexpr auto wireMembers()
    {
        return std::tuple(WireMember{"id", &IssueTypeDTO::id},
                          WireMember{"name", &IssueTypeDTO::name},
                          WireMember{"subtask", &IssueTypeDTO::subtask},
                          WireMember{"hierarchyLevel", &IssueTypeDTO::hierarchyLevel});
    }
};
