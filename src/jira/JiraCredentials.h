#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <optional>

/// What a connection to a site is made from.
struct JiraCredentials
{
    /// Scheme and host, and a port where one was typed; no path.
    QUrl site;
    /// The account's e-mail on Jira Cloud; empty for a personal access token of Jira Data Center.
    QString email;
    /// The API token or the personal access token.
    QString token;

    /// The value of the header `Authorization`: "Basic" with e-mail and token, or "Bearer" with the token alone when
    /// there is no e-mail.
    QByteArray authorizationHeader() const;
    /// The site for display: its host, or its whole address when it has none.
    QString siteName() const;

    /// The address of a site from what someone typed: blanks around it, path, query and fragment go, https is added
    /// where no scheme was typed, and a name without a dot is one of Jira Cloud. Nothing when that gives no address
    /// with a host.
    static std::optional<QUrl> normalizeSite(const QString &text);

    bool operator==(const JiraCredentials &) const = default;
};
