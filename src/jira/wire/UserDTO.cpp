#include "jira/wire/UserDTO.h"

#include "jira/WebAddress.h"
#include "model/text/VisibleText.h"

using namespace Qt::StringLiterals;

namespace {

/// The picture of 48 pixels if the site names one, even if its address is invalid; otherwise the picture of 32 pixels.
std::optional<QUrl> pictureOf(const AvatarUrlsDTO &addresses)
{
    return webAddress(addresses.large ? addresses.large : addresses.medium);
}

} // namespace

JiraUser UserDTO::model() const
{
    return {.id = accountId,
            .name = visibleText(displayName.value_or(u"Utilisateur inconnu"_s)),
            .email = emailAddress,
            .avatarURL = avatarUrls ? pictureOf(*avatarUrls) : std::nullopt};
}
