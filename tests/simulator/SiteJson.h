#pragma once

#include "simulator/Site.h"

#include <QJsonArray>
#include <QJsonObject>

/// Converts the site's records to the JSON of version 3 of the interface.
namespace SiteJson {

/// The fields and expansions that a request asks for.
struct Wanted
{
    /// The names of fields; "*all" stands for all of them.
    QStringList fields;
    bool history = false;
    bool html = false;
};

QJsonObject user(const Site &site, const QString &accountId);
QJsonObject project(const Site &site, const SiteProject &project);
/// Includes the issue types of the project.
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

/// A time in the site's time zone: "2026-10-29T14:32:05.123+0100".
QString instant(const Site &site, const QDateTime &date);

} // namespace SiteJson
