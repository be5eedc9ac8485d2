#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <optional>

/// A request to Jira's REST interface, independent of a site.
struct JiraRequest
{
    enum class Method { Get, Post, Put, Delete };

    Method method = Method::Get;
    /// The segments of the path below the site's address, not yet percent-encoded.
    QStringList path;
    /// The parameters of the query, not yet percent-encoded; sent in the order of their names.
    QMap<QString, QString> query;
    /// JSON in UTF-8.
    std::optional<QByteArray> body;

    /// The complete address on a site. Segments and values are encoded so that the server receives them unchanged,
    /// including "/", "+", "%41", "&", "#" and "é". Nothing if the site has no host.
    std::optional<QUrl> url(const QUrl &site) const;

    bool operator==(const JiraRequest &) const = default;
};

/// "GET", "POST", "PUT" or "DELETE".
QByteArray verb(JiraRequest::Method method);

/// The address of an issue's web page.
std::optional<QUrl> browseURL(const QUrl &site, const QString &key);
