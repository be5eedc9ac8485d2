#pragma once

#include "jira/wire/AvatarUrlsDTO.h"
#include "jira/wire/WireMember.h"
#include "model/JiraUser.h"

#include <QString>

#include <optional>
#include <tuple>

/// A user, as Jira sends one.
struct UserDTO
{
    QString accountId;
    std::optional<QString> accountType;
    std::optional<QString> displayName;
    std::optional<QString> emailAddress;
    std::optional<AvatarUrlsDTO> avatarUrls;
    std::optional<bool> active;

    /// A user without a name is "Utilisateur inconnu". The picture is that of 48 pixels, or of 32 where the site names
    /// none of 48.
    JiraUser model() const;

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
