#include "jira/JiraCredentials.h"

#include "model/JiraError.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The domain of all Jira Cloud sites.
constexpr auto CloudSuffix = ".atlassian.net"_L1;

bool isShortName(const QString &host)
{
    // An IPv6 address contains no dot either, but is not a name.
    return !host.contains(u'.') && !host.contains(u':');
}

/// True for a text with a control or formatting character, which neither an e-mail nor a token contains. A line break
/// would end the header that contains the token.
bool hasInvisible(const QString &text)
{
    return std::ranges::any_of(text, [](QChar character) {
        return character.category() == QChar::Other_Control ||
               character.category() == QChar::Other_Format ||
               character.category() == QChar::Separator_Line ||
               character.category() == QChar::Separator_Paragraph;
    });
}

} // namespace

JiraCredentials JiraCredentials::typed(const QString &site, const QString &email,
                                       const QString &token)
{
    const auto address = normalizeSite(site);
    if (!address || !address->userInfo().isEmpty())
        throw JiraError(JiraError::InvalidSite{});
    const JiraCredentials result{*address, email.trimmed(), token.trimmed()};
    if (hasInvisible(result.email))
        throw Failure(
            u"L'e-mail contient un caractère invisible. Efface-le et saisis-le à nouveau."_s);
    if (hasInvisible(result.token))
        throw Failure(u"Le token contient un caractère invisible. Copie-le à nouveau."_s);
    return result;
}

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
    site.setPassword({});
    site.setPath({});
    site.setQuery(QString());
    site.setFragment(QString());
    return site.isValid() ? std::optional(site) : std::nullopt;
}
