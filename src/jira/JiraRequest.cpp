#include "jira/JiraRequest.h"

using namespace Qt::StringLiterals;

namespace {

QByteArray encodedPath(const QStringList &segments)
{
    QByteArray path;
    for (const QString &segment : segments)
        path += '/' + QUrl::toPercentEncoding(segment);
    return path;
}

QByteArray encodedQuery(const QMap<QString, QString> &items)
{
    QByteArray query;
    for (auto item = items.begin(); item != items.end(); ++item) {
        query += query.isEmpty() ? '?' : '&';
        query += QUrl::toPercentEncoding(item.key()) + '=' + QUrl::toPercentEncoding(*item);
    }
    return query;
}

} // namespace

std::optional<QUrl> JiraRequest::url(const QUrl &site) const
{
    const auto origin = QUrl::RemovePath | QUrl::RemoveQuery | QUrl::RemoveFragment;
    const QByteArray base = site.toEncoded(origin);
    const QUrl url = QUrl::fromEncoded(base + encodedPath(path) + encodedQuery(query));
    return url.isValid() && !url.host().isEmpty() ? std::optional(url) : std::nullopt;
}

QByteArray verb(JiraRequest::Method method)
{
    switch (method) {
    case JiraRequest::Method::Get:
        return "GET";
    case JiraRequest::Method::Post:
        return "POST";
    case JiraRequest::Method::Put:
        return "PUT";
    case JiraRequest::Method::Delete:
        return "DELETE";
    }
    return {};
}

std::optional<QUrl> browseURL(const QUrl &site, const QString &key)
{
    return JiraRequest{.path = {u"browse"_s, key}}.url(site);
}
