#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <optional>

/// The data needed to connect to a site.
struct JiraCredentials
{
    /// The scheme and the host, and the port if the user typed one; no path.
    QUrl site;
    /// The e-mail of the account on Jira Cloud; empty for a personal access token of Jira Data Center.
    QString email;
    /// The API token or the personal access token.
    QString token;

    /// The value of the `Authorization` header: "Basic" with the e-mail and the token, or "Bearer" with the token if
    /// there is no e-mail.
    QByteArray authorizationHeader() const;
    /// The name of the site to display: its host, or its whole address if it has no host.
    QString siteName() const;

    /// The credentials from the texts that the user typed, without surrounding blanks. Fails with
    /// `JiraError::InvalidSite` for an address that is none or that contains a user name, such as an e-mail in the place
    /// of the site, and with `Failure` for an e-mail or a token with invisible characters.
    static JiraCredentials typed(const QString &site, const QString &email, const QString &token);
    /// The address of a site from a text that the user typed. Surrounding blanks, password, path, query and fragment are
    /// removed;
    /// https is added if there is no scheme; a name without a dot gets the domain of Jira Cloud. Nothing if the result
    /// has no host.
    static std::optional<QUrl> normalizeSite(const QString &text);

    bool operator==(const JiraCredentials &) const = default;
};
