#pragma once

#include "jira/JiraCredentials.h"
#include "platform/Keychain.h"
#include "platform/Preferences.h"

#include <QCoro/QCoroTask>

#include <variant>

/// Keeps the credentials between starts: site and e-mail in the preferences, the token in the system's store of secrets
/// and nowhere else. One item for each site. UI thread only.
class CredentialsStore
{
public:
    /// The token may be there, but the system refused to hand it over.
    struct Blocked
    {
        /// What the user reads.
        QString text;
        bool operator==(const Blocked &) const = default;
    };
    /// Nothing saved, or a site without a token.
    struct None
    {
        bool operator==(const None &) const = default;
    };
    using Stored = std::variant<JiraCredentials, Blocked, None>;

    /// Both outlive this object and what it began; the keychain may end what it began.
    CredentialsStore(Preferences &preferences, Keychain &keychain);

    /// The stored texts, whether or not there is a token; empty when there is none. They stay after a removal, so that
    /// the form can offer them again.
    QString site() const;
    QString email() const;

    QCoro::Task<Stored> load();
    /// Fails with `Keychain::Failure`, and then no preference is written.
    QCoro::Task<> save(JiraCredentials credentials);
    /// Deletes the token of the stored site; never fails.
    QCoro::Task<> removeToken();

private:
    std::optional<QUrl> siteURL() const;

    Preferences &m_preferences;
    Keychain &m_keychain;
};
