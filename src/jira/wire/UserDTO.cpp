#include "jira/wire/UserDTO.h"

#include "jira/WebAddress.h"
#include "model/text/VisibleText.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

/// The picture of 48 pixels if the site names one, even if its address is invalid; otherwise the picture of 32 pixels.
std::optional<QUrl> pictureOf(const AvatarUrlsDTO &addresses)
{
    return webAddress(addresses.large ? addresses.large : addresses.medium);
}

JiraUser converted(const UserDTO &wire)
{
    return {.id = wire.accountId,
            .name = visibleText(wire.displayName.value_or(u"Utilisateur inconnu"_s)),
            .email = wire.emailAddress,
            .avatarURL = wire.avatarUrls ? pictureOf(*wire.avatarUrls) : std::nullopt};
}

/// A user and its domain record.
struct Conversion
{
    std::optional<UserDTO> wire;
    JiraUser record;
};

/// The number of users whose conversion is remembered.
constexpr size_t RememberedUsers = 64;

} // namespace

JiraUser UserDTO::model() const
{
    // A page names the same few users in every issue and in every entry of its history. Each thread that converts has
    // its own memory of them.
    thread_local std::array<Conversion, RememberedUsers> recent;
    Conversion &conversion = recent[qHash(accountId) % RememberedUsers];
    if (conversion.wire != *this)
        conversion = {*this, converted(*this)};
    return conversion.record;
}
