#include "jira/JiraCredentials.h"

using namespace Qt::StringLiterals;

namespace {

/// The domain of all Jira Cloud sites.
constexpr auto CloudSuffix = ".atlassian.net"_L1;

bool isShortName(const QString &host)
{
    // An IPv6 address contains no dot either, but is not a name.
    return !host.contains(u'.') && !host.contains(u':');
}

} // namespace

QByteArray JiraCredentials::authorizationHeader() const
{
    if (email.isEmpty())
        return "Bearer " + token.toUtf8();
    return "Basic " + (email + u':' + token).toUtf8().toBase64();
}

QString JiraCredentials::siteName() const
{
    const QString host = site.host(QUrl::FullyEncoded);
    return host.isEmpty() ? site.toString(QUrl::FullyEncoded) : host;
}

std::optional<QUrl> JiraCredentials::normalizeSite(const QString &text)
{
    const QString typed = text.trimmed();
    if (typed.isEmpty())
        return std::nullopt;
    QUrl site(typed.contains("://"_L1) ? typed : "https://"_L1 + typed);
    if (!site.isValid() || site.isRelative() || site.host().isEmpty())
        return std::nullopt;
    if (isShortName(site.host()))
        site.setHost(site.host() + CloudSuffix);
    site.setPath({});
    site.setQuery(QString());
    site.setFragment(QString());
    return site.isValid() ? std::optional(site) : std::nullopt;
}
