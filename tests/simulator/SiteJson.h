#pragma once

#include "simulator/Site.h"

#include <QJsonArray>
#include <QJsonObject>

/// The records of the site in the JSON of its interface, version 3.
namespace SiteJson {

/// Which extra parts a request asks for.
struct Wanted
{
    /// Names of fields; "*all" stands for every one.
    QStringList fields;
    bool history = false;
    bool html = false;
};

QJsonObject user(const Site &site, const QString &accountId);
QJsonObject project(const Site &site, const SiteProject &project);
/// With its issue types.
QJsonObject detailedProject(const Site &site, const SiteProject &project);
QJsonObject type(const Site &site, const SiteIssueType &type);
QJsonObject status(const Site &site, const SiteStatus &status);
QJsonObject priority(const Site &site, const SitePriority &priority);
QJsonObject transition(const Site &site, const SiteProject &project,
                       const SiteTransition &transition);
QJsonObject attachment(const Site &site, const SiteAttachment &attachment);
QJsonObject comment(const Site &site, const SiteIssue &issue, const SiteComment &comment,
                    const Wanted &wanted);
QJsonObject issue(const Site &site, const SiteIssue &issue, const Wanted &wanted);

/// An instant in the site's zone: "2026-10-29T14:32:05.123+0100".
QString instant(const Site &site, const QDateTime &date);

} // namespace SiteJson
