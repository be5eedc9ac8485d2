#include "simulator/SiteDataCenter.h"

#include "simulator/SiteJson.h"
#include "simulator/SiteReply.h"
#include "simulator/jql/JqlSearch.h"

#include <QJsonDocument>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

constexpr auto Root = "/rest/api/2/"_L1;

/// A user of Data Center has a name and a key and no account.
QJsonObject user(const Site &site, const QString &accountId)
{
    const SiteUser *found = site.user(accountId);
    if (!found)
        return {{u"name"_s, accountId}};
    const SiteUser &user = *found;
    const QString name = user.displayName.toLower().replace(u' ', u'.');
    return {{u"self"_s, site.address.toString() + Root + u"user?username="_s + name},
            {u"key"_s, u"JIRAUSER"_s + accountId},
            {u"name"_s, name},
            {u"emailAddress"_s, user.email},
            {u"displayName"_s, user.displayName},
            {u"active"_s, user.isActive},
            {u"timeZone"_s, QString::fromLatin1(site.zone.id())}};
}

/// The texts of a document as wiki markup; only paragraphs are distinguished.
QString wikiText(const QJsonValue &document)
{
    QString text = document["text"_L1].toString();
    for (const QJsonValue part : document["content"_L1].toArray())
        text += wikiText(part);
    return document["type"_L1] == "paragraph"_L1 ? text + u"\n\n"_s : text;
}

/// An issue of the Cloud's interface in the form of Data Center.
QJsonObject issue(const Site &site, const SiteIssue &issue)
{
    QJsonObject json = SiteJson::issue(site, issue, {.fields = {u"*all"_s}});
    QJsonObject fields = json.value("fields"_L1).toObject();
    fields.insert(u"description"_s, wikiText(issue.description).trimmed());
    fields.insert(u"assignee"_s,
                  issue.assignee.isEmpty() ? QJsonValue() : user(site, issue.assignee));
    fields.insert(u"reporter"_s,
                  issue.reporter.isEmpty() ? QJsonValue() : user(site, issue.reporter));
    json.insert(u"fields"_s, fields);
    return json;
}

RawAnswer search(const Site &site, const QByteArray &body)
{
    const QJsonObject asked = QJsonDocument::fromJson(body).object();
    const auto found = searchIssues(site, asked.value("jql"_L1).toString());
    if (!found)
        return SiteReply::refused(400, {found.error()});
    const qsizetype startAt = asked.value("startAt"_L1).toInteger(0);
    const qsizetype maxResults = asked.value("maxResults"_L1).toInteger(50);
    QJsonArray issues;
    for (qsizetype at = startAt; at < std::min(found->size(), startAt + maxResults); ++at)
        issues += issue(site, *found->at(at));
    return SiteReply::found(QJsonObject{{u"startAt"_s, startAt},
                                        {u"maxResults"_s, maxResults},
                                        {u"total"_s, found->size()},
                                        {u"issues"_s, issues}});
}

RawAnswer notSignedInToServer()
{
    return RawAnswer::http(401, "<html><title>Unauthorized (401)</title></html>",
                           {{"Content-Type", "text/html;charset=UTF-8"},
                            {"X-Seraph-LoginReason", "AUTHENTICATED_FAILED"},
                            {"WWW-Authenticate", "OAuth realm=\"simulateur\""}});
}

RawAnswer noSuchPath(const Site &site, const RawRequest &request)
{
    const QString address = site.address.toString() + QString::fromLatin1(request.target);
    return SiteReply::found(
        QJsonObject{{u"message"_s, u"null for uri: "_s + address}, {u"status-code"_s, 404}}, 404);
}

RawAnswer serverInfo(const Site &site)
{
    return SiteReply::found(QJsonObject{{u"baseUrl"_s, site.address.toString()},
                                        {u"version"_s, u"9.12.0"_s},
                                        {u"versionNumbers"_s, QJsonArray{9, 12, 0}},
                                        {u"deploymentType"_s, u"Server"_s}});
}

RawAnswer list(const auto &records, const auto &json)
{
    QJsonArray all;
    for (const auto &record : records)
        all += json(record);
    return SiteReply::found(all);
}

} // namespace

RawAnswer dataCenterAnswerOf(const Site &site, const RawRequest &request)
{
    const QString path = QUrl::fromEncoded(request.target).path();
    if (!path.startsWith(Root))
        return noSuchPath(site, request);
    if (request.header("Authorization") != "Bearer " + site.personalToken.toUtf8())
        return notSignedInToServer();
    const QString rest = path.sliced(Root.size());
    if (request.method == "POST")
        return rest == "search"_L1 ? search(site, request.body) : noSuchPath(site, request);
    if (request.method != "GET")
        return noSuchPath(site, request);
    if (rest == "myself"_L1)
        return SiteReply::found(user(site, site.me));
    if (rest == "serverInfo"_L1)
        return serverInfo(site);
    if (rest == "project"_L1)
        return list(site.projects, [&](const auto &one) { return SiteJson::project(site, one); });
    if (rest == "priority"_L1)
        return list(site.priorities,
                    [&](const auto &one) { return SiteJson::priority(site, one); });
    const SiteIssue *found =
        rest.startsWith("issue/"_L1) ? site.issue(rest.section(u'/', 1)) : nullptr;
    return found ? SiteReply::found(issue(site, *found)) : noSuchPath(site, request);
}
