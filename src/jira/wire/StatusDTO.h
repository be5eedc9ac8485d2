#pragma once

#include "jira/wire/WireMember.h"
#include "model/IssueStatus.h"

#include <QList>
#include <QString>

#include <optional>
#include <tuple>

/// A status in Jira's JSON.
struct StatusDTO
{
    struct Category
    {
        /// "new", "indeterminate" or "done".
        std::optional<QString> key;

        static constexpr auto wireMembers()
        {
            return std::tuple(WireMember{"key", &Category::key});
        }
    };

    QString id;
    QString name;
    std::optional<Category> statusCategory;

    /// Converts to a domain record.
    IssueStatus model() const;

    static constexpr auto wireMembers()
    {
        return std::tuple(WireMember{"id", &StatusDTO::id}, WireMember{"name", &StatusDTO::name},
                          WireMember{"statusCategory", &StatusDTO::statusCategory});
    }
};

/// The statuses of one issue type of a project.
struct IssueTypeStatusesDTO
{
    QList<StatusDTO> statuses;

    static constexpr auto wireMembers()
    {
        return std::tuple(WireMember{"statuses", &IssueTypeStatusesDTO::statuses});
    }
};
