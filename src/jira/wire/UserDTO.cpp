#include "jira/wire/UserDTO.h"

#include "jira/WebAddress.h"

using namespace Qt::StringLiterals;

namespace {

/// The first size that the site names decides, even when its address is no address.
std::optional<QUrl> pictureOf(const QMap<QString, QString> &addresses)
{
    for (const QString &size : {u"48x48"_s, u"32x32"_s}) {
        if (const auto found = addresses.find(size); found != addresses.end())
            return webAddress(*found);
    }
    return std::nullopt;
}

} // namespace

JiraUser UserDTO::model() const
{
    return {.id = accountId,
            .name = displayName.value_or(u"Utilisateur inconnu"_s),
            .email = emailAddress,
            .avatarURL = avatarUrls ? pictureOf(*avatarUrls) : std::nullopt};
}
