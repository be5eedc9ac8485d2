#pragma once

#include "jira/wire/AvatarUrlsDTO.h"
#include "jira/wire/IssueTypeDTO.h"
#include "jira/wire/WireMember.h"
#include "model/Project.h"

#include <QList>
#include <QString>

#include <optional>
#include <tuple>

/// A project in Jira's JSON.
struct ProjectDTO
{
    QString id;
    QString key;
    std::optional<QString> name;
    /// Only the large picture is used.
    std::optional<AvatarUrlsDTO> avatarUrls;
    std::optional<QList<IssueTypeDTO>> issueTypes;
    /// "service_desk" for a service project.
    std::optional<QString> projectTypeKey;

    /// Converts to a domain record. The key replaces a missing name.
    Project model() const;

    static constexpr auto wireMembers()
    {
        return std::tuple(WireMember{"id", &ProjectDTO::id}, WireMember{"key", &ProjectDTO::key},
                          WireMember{"name", &ProjectDTO::name},
                          WireMember{"avatarUrls", &ProjectDTO::avatarUrls},
                          WireMember{"issueTypes", &ProjectDTO::issueTypes},
                          WireMember{"projectTypeKey", &ProjectDTO::projectTypeKey});
    }
};

/// One page of the site's projects.
struct ProjectSearchDTO
{
    QList<ProjectDTO> values;
    std::optional<bool> isLast;

    static constexpr auto wireMembers()
    {
        return std::tuple(WireMember{"values", &ProjectSearchDTO::values, MostInPage},
                          WireMember{"isLast", &ProjectSearchDTO::isLast});
    }
};
