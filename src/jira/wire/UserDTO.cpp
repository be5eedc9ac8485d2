#include "jira/wire/UserDTO.h"

#include "jira/WebAddress.h"

using namespace Qt::StringLiterals;

namespace {

/// The large picture that the site names decides, even when its address is no address.
std::optional<QUrl> pictureOf(const AvatarUrlsDTO &addresses)
{
    return webAddress(addresses.large ? addresses.large : addresses.medium);
}

} // namespace

JiraUser UserDTO::model() const
{
    return {.id = accountId,
            .name = displayName.value_or(u"Utilisateur inconnu"_s),
            .email = emailAddress,
            .avatarURL = avatarUrls ? pictureOf(*avatarUrls) : std::nullopt};
}
