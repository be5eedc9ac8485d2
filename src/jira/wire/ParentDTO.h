#pragma once

#include "jira/wire/IssueTypeDTO.h"
#include "jira/wire/StatusDTO.h"
#include "jira/wire/WireMember.h"
#include "model/Issue.h"

#include <QString>

#include <optional>
#include <tuple>

/// The parent or a sub-task of an issue in Jira's JSON.
struct ParentDTO
{
    struct Fields
    {
        std::optional<QString> summary;
        std::optional<StatusDTO> status;
        std::optional<IssueTypeDTO> issuetype;

        static constexpr auto wireMembers()
        {
            return std::tuple(WireMember{"summary", &Fields::summary},
                              WireMember{"status", &Fields::status},
                              WireMember{"issuetype", &Fields::issuetype});
        }
    };

    QString id;
    QString key;
    std::optional<Fields> fields;

    /// Converts to a domain record. The key replaces a missing summary.
    IssueRef model() const;

    static constexpr auto wireMembers()
    {
        return std::tuple(WireMember{"id", &ParentDTO::id}, WireMember{"key", &ParentDTO::key},
                          WireMember{"fields", &ParentDTO::fields});
    }
};
