#include "RecordedSite.h"

#include "simulator/SiteRest.h"
#include "simulator/SiteSeed.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

constexpr int PageSize = 100;
constexpr int Pages = 3;
constexpr int Issues = 5000;
/// The largest page that the program accepts.
constexpr int LargePageSize = 1000;

QJsonArray listFields()
{
    return {u"summary"_s, u"status"_s,    u"priority"_s, u"assignee"_s, u"reporter"_s,
            u"labels"_s,  u"issuetype"_s, u"project"_s,  u"created"_s,  u"updated"_s,
            u"duedate"_s, u"parent"_s,    u"subtasks"_s};
}

QByteArray searchBody(const QString &token)
{
    QJsonObject body{{u"jql"_s, u"created >= \"2000/01/01 00:00\" ORDER BY updated DESC"_s},
                     {u"fields"_s, listFields()},
                     {u"maxResults"_s, PageSize},
                     {u"expand"_s, u"changelog"_s}};
    if (!token.isEmpty())
        body[u"nextPageToken"_s] = token;
    return QJsonDocument(body).toJson(QJsonDocument::Compact);
}

RawRequest searchRequest(const Site &site, const QString &token)
{
    RawRequest request;
    request.method = "POST";
    request.target = "/rest/api/3/search/jql";
    request.headers = {
        {"Authorization", "Basic " + (site.email + u':' + site.token).toUtf8().toBase64()},
        {"Content-Type", "application/json"}};
    request.body = searchBody(token);
    return request;
}

/// All issues of a fictitious company, in the format of a search response.
QJsonArray recordedIssues()
{
    Site site = SiteSeed::company(Issues, QDateTime::currentDateTimeUtc());
    QJsonArray issues;
    QString token;
    do {
        const RawAnswer answer = answerOf(site, searchRequest(site, token));
        const QByteArray body = answer.bytes.mid(answer.bytes.indexOf("\r\n\r\n") + 4);
        const QJsonObject page = QJsonDocument::fromJson(body).object();
        if (!page.contains(u"issues"_s))
            qFatal("The site does not answer the search: %s", answer.bytes.constData());
        for (const QJsonValue issue : page.value(u"issues"_s).toArray())
            issues.append(issue);
        token = page.value(u"nextPageToken"_s).toString();
    } while (!token.isEmpty());
    return issues;
}

RawAnswer pageOf(const QJsonArray &issues, qsizetype first, qsizetype count, const QString &token)
{
    QJsonArray part;
    for (qsizetype i = first; i < first + count; ++i)
        part.append(issues.at(i));
    QJsonObject page{{u"issues"_s, part}, {u"isLast"_s, token.isEmpty()}};
    if (!token.isEmpty())
        page[u"nextPageToken"_s] = token;
    return RawAnswer::json(QJsonDocument(page).toJson(QJsonDocument::Compact));
}

} // namespace

RecordedSite::RecordedSite()
{
    const QJsonArray issues = recordedIssues();
    QList<RawAnswer> pages;
    for (int i = 0; i < Pages; ++i) {
        const QString token = i + 1 < Pages ? QString::number(i + 1) : QString();
        pages.append(pageOf(issues, qsizetype(i) * PageSize, PageSize, token));
    }
    m_pages.answerBy([this, pages](const RawRequest &request) {
        m_pages.clearJournal();
        const QJsonObject body = QJsonDocument::fromJson(request.body).object();
        return pages.at(body.value(u"nextPageToken"_s).toString().toInt());
    });
    m_large.answer(pageOf(issues, 0, LargePageSize, {}));
}
