#include "simulator/SiteJson.h"
#include "simulator/SiteReads.h"
#include "simulator/SiteReply.h"
#include "simulator/jql/JqlSearch.h"

#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace {

/// The contents of the body of a search request.
struct Asked
{
    QString jql;
    SiteJson::Wanted wanted;
    qsizetype maxResults = 50;
    qsizetype offset = 0;
};

/// A token contains the start of the next page and identifies the query that it belongs to.
QString tokenFor(const QString &jql, qsizetype offset)
{
    const QByteArray text = QByteArray::number(offset) + ':' + QByteArray::number(qHash(jql, 1));
    return QString::fromLatin1(text.toBase64(QByteArray::Base64UrlEncoding));
}

std::optional<qsizetype> offsetOf(const QString &token, const QString &jql)
{
    const QByteArray text = QByteArray::fromBase64(token.toLatin1(), QByteArray::Base64UrlEncoding);
    const qsizetype offset = text.first(std::max<qsizetype>(text.indexOf(':'), 0)).toLongLong();
    return tokenFor(jql, offset) == token ? std::optional(offset) : std::nullopt;
}

bool hasOnlyKnownMembers(const QJsonObject &body)
{
    // The interface has more members. These are the only ones accepted here, because the client uses no others.
    static const QMap<QString, QJsonValue::Type> members = {
        {u"jql"_s, QJsonValue::String},
        {u"fields"_s, QJsonValue::Array},
        {u"maxResults"_s, QJsonValue::Double},
        {u"expand"_s, QJsonValue::String},
        {u"nextPageToken"_s, QJsonValue::String},
        {u"fieldsByKeys"_s, QJsonValue::Bool},
        {u"properties"_s, QJsonValue::Array},
        {u"failFast"_s, QJsonValue::Bool},
        {u"reconcileIssues"_s, QJsonValue::Array},
    };
    const QStringList names = body.keys();
    return std::ranges::all_of(names, [&](const QString &name) {
        return members.contains(name) && body.value(name).type() == members.value(name);
    });
}

QStringList texts(const QJsonArray &values)
{
    QStringList texts;
    for (const QJsonValue value : values)
        texts += value.toString();
    return texts;
}

std::optional<Asked> askedBy(const QByteArray &body)
{
    const QJsonObject json = QJsonDocument::fromJson(body).object();
    if (!json.contains("jql"_L1) || !hasOnlyKnownMembers(json))
        return {};
    Asked asked{.jql = json.value("jql"_L1).toString()};
    asked.wanted.fields = texts(json.value("fields"_L1).toArray());
    asked.wanted.history = json.value("expand"_L1).toString().split(u',').contains(u"changelog"_s);
    asked.maxResults = json.value("maxResults"_L1).toInteger(50);
    const QString token = json.value("nextPageToken"_L1).toString();
    if (!token.isEmpty()) {
        const auto offset = offsetOf(token, asked.jql);
        if (!offset)
            return {};
        asked.offset = *offset;
    }
    return asked.maxResults >= 1 && asked.maxResults <= 5000 ? std::optional(asked) : std::nullopt;
}

} // namespace

RawAnswer SiteReads::search(const Site &site, const QByteArray &body)
{
    const auto asked = askedBy(body);
    if (!asked)
        return SiteReply::badBody();
    const auto found = searchIssues(site, asked->jql);
    if (!found)
        return SiteReply::refused(400, {found.error()});

    const qsizetype begin = std::min(asked->offset, found->size());
    const qsizetype end =
        std::min(found->size(), begin + std::min(asked->maxResults, site.largestPage));
    QJsonArray issues;
    for (qsizetype at = begin; at < end; ++at)
        issues += SiteJson::issue(site, *found->at(at), asked->wanted);
    QJsonObject page{{u"issues"_s, issues}, {u"isLast"_s, end == found->size()}};
    if (end < found->size())
        page.insert(u"nextPageToken"_s, tokenFor(asked->jql, end));
    return SiteReply::found(page);
}
