#pragma once

#include "jira/wire/AvatarUrlsDTO.h"
#include "jira/wire/WireMember.h"
#include "model/JiraUser.h"

#include <QString>

#include <optional>
#include <tuple>

/// A user in Jira's JSON.
struct UserDTO
{
    QString accountId;
    std::optional<QString> accountType;
    std::optional<QString> displayName;
    std::optional<QString> emailAddress;
    std::optional<AvatarUrlsDTO> avatarUrls;
    std::optional<bool> active;

    /// Converts to a domain record. "Utilisateur inconnu" replaces a missing name, and characters that hide in a name are
    /// made visible, so that nobody passes for another. The picture is the one of 48 pixels,
    /// or the one of 32 pixels if the site names no larger one.
    JiraUser model() const;

    bool operator==(const UserDTO &) const = default;

    static constexpr auto wireMembers()
    {
        return std::tuple(WireMember{"accountId", &UserDTO::accountId},
                          WireMember{"accountType", &UserDTO::accountType},
                          WireMember{"displayName", &UserDTO::displayName},
                          WireMember{"emailAddress", &UserDTO::emailAddress},
                          WireMember{"avatarUrls", &UserDTO::avatarUrls},
                          WireMember{"active", &UserDTO::active});
    }
};
