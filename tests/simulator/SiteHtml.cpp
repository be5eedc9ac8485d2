#include "simulator/SiteHtml.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace {

QString picture(const Site &site, const SiteIssue &issue, const QString &mediaId)
{
    const auto found = std::ranges::find(issue.attachments, mediaId, &SiteAttachment::mediaId);
    if (found == issue.attachments.end())
        return {};
    const QString root = site.address.toString();
    return u"<span class=\"image-wrap\"><a href=\"%1/rest/api/3/attachment/content/%2\">"
           "<img src=\"%1/rest/api/3/attachment/thumbnail/%2\" alt=\"\"></a></span>"_s.arg(
               root, found->id);
}

} // namespace

QString htmlOf(const Site &site, const SiteIssue &issue, const QJsonObject &document)
{
    const QString type = document.value("type"_L1).toString();
    if (type == "text"_L1)
        return document.value("text"_L1).toString().toHtmlEscaped();
    if (type == "media"_L1 || type == "mediaInline"_L1)
        return picture(site, issue, document["attrs"_L1]["id"_L1].toString());
    QString html;
    for (const QJsonValue child : document.value("content"_L1).toArray())
        html += htmlOf(site, issue, child.toObject());
    return type == "paragraph"_L1 ? u"<p>"_s + html + u"</p>"_s : html;
}
