#include "jira/CredentialsStore.h"

#include "jira/WebAddress.h"
#include "platform/Wording.h"

using namespace Qt::StringLiterals;

namespace {

const auto SiteKey = u"jira.site"_s;
const auto EmailKey = u"jira.email"_s;

QString absoluteText(const QUrl &site)
{
    return QString::fromUtf8(site.toEncoded());
}

QString blockedText(const Keychain::Failed &failed)
{
    const QString reason =
        failed.reason.isEmpty() ? u"code "_s + QString::number(failed.status) : failed.reason;
    return Wording::localized(u"macOS n'a pas donné accès au token enregistré ("_s) + reason +
           Wording::localized(
               u"). Clique sur « Réessayer » puis « Toujours autoriser », ou ressaisis ton token."_s);
}

} // namespace

CredentialsStore::CredentialsStore(Preferences &preferences, Keychain &keychain)
    : m_preferences(preferences), m_keychain(keychain)
{
}

QString CredentialsStore::site() const
{
    const auto address = siteURL();
    return address ? absoluteText(*address) : m_preferences.text(SiteKey).value_or(QString());
}

QString CredentialsStore::email() const
{
    return m_preferences.text(EmailKey).value_or(QString());
}

std::optional<QUrl> CredentialsStore::siteURL() const
{
    auto address = webAddress(m_preferences.text(SiteKey));
    if (address)
        address->setPassword({});
    return address;
}

QCoro::Task<CredentialsStore::Stored> CredentialsStore::load()
{
    const auto site = siteURL();
    if (!site || !site->userInfo().isEmpty())
        co_return None();
    const Keychain::Lookup lookup = co_await m_keychain.read(absoluteText(*site));
    if (const auto *failed = std::get_if<Keychain::Failed>(&lookup))
        co_return Blocked{blockedText(*failed)};
    if (const auto *found = std::get_if<Keychain::Found>(&lookup))
        co_return JiraCredentials{*site, email(), found->token};
    co_return None();
}

QCoro::Task<> CredentialsStore::save(JiraCredentials credentials)
{
    const QString site = absoluteText(credentials.site);
    co_await m_keychain.save(credentials.token, site);
    m_preferences.setText(SiteKey, site);
    m_preferences.setText(EmailKey, credentials.email);
}

QCoro::Task<> CredentialsStore::removeToken()
{
    if (const auto site = siteURL())
        co_await m_keychain.remove(absoluteText(*site));
}
