#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <optional>

/// One request of Jira's REST interface, before it knows a site.
struct JiraRequest
{
    enum class Method { Get, Post, Put, Delete };

    Method method = Method::Get;
    /// The path from the site on, in segments that are not yet encoded.
    QStringList path;
    /// Not yet encoded; goes out by name.
    QMap<QString, QString> query;
    /// JSON in UTF-8.
    std::optional<QByteArray> body;

    /// The whole address on a site. What a segment or a value holds arrives as itself: a slash, "+", "%41", "&", "#" or
    /// "é" has no meaning of its own. Nothing when the site has no host.
    std::optional<QUrl> url(const QUrl &site) const;

    bool operator==(const JiraRequest &) const = default;
};

/// "GET", "POST", "PUT" or "DELETE".
QByteArray verb(JiraRequest::Method method);

/// The address of an issue's web page.
std::optional<QUrl> browseURL(const QUrl &site, const QString &key);
