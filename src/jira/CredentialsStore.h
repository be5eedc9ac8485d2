#pragma once

#include "jira/JiraCredentials.h"
#include "platform/Keychain.h"
#include "platform/Preferences.h"

#include <QCoro/QCoroTask>

#include <variant>

/// Stores the credentials between starts of the program: the site and the e-mail in the preferences, the token only in
/// the system's store for secrets, as one item per site. UI thread only.
class CredentialsStore
{
public:
    /// There may be a token, but the system did not release it.
    struct Blocked
    {
        /// The text for the user.
        QString text;
        bool operator==(const Blocked &) const = default;
    };
    /// Nothing is stored, or only a site without a token.
    struct None
    {
        bool operator==(const None &) const = default;
    };
    using Stored = std::variant<JiraCredentials, Blocked, None>;

    /// Both arguments must outlive this object and the operations that it started; the keychain may cancel those
    /// operations.
    CredentialsStore(Preferences &preferences, Keychain &keychain);

    /// The stored texts, whether or not there is a token; empty if nothing is stored. They are kept when the token is
    /// removed, so that the sign-in form can propose them again.
    QString site() const;
    QString email() const;

    /// Reads the stored site and e-mail, and the token of that site. Fails only with `Cancelled`.
    QCoro::Task<Stored> load();
    /// Fails with `Keychain::Failure`; in this case no preference is written.
    QCoro::Task<> save(JiraCredentials credentials);
    /// Deletes the token of the stored site. Fails with `Keychain::Failure`; the token is then still stored.
    QCoro::Task<> removeToken();

private:
    std::optional<QUrl> siteURL() const;

    Preferences &m_preferences;
    Keychain &m_keychain;
};
