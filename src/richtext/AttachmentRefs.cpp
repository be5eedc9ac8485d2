#include "richtext/AttachmentRefs.h"

#include "richtext/ADFQueries.h"

#include <QSet>

namespace {

/// The path between the first slash and the number of the attachment, in the addresses that Jira writes.
constexpr QStringView Prefixes[] = {u"secure/attachment/", u"attachment/content/",
                                    u"attachment/thumbnail/"};

/// The rest of a text that starts with the path of an attachment; empty for any other text.
QStringView afterPrefix(QStringView text)
{
    for (const QStringView prefix : Prefixes) {
        if (text.startsWith(prefix))
            return text.sliced(prefix.size());
    }
    return {};
}

QStringView leadingDigits(QStringView text)
{
    const auto end =
        std::ranges::find_if_not(text, [](QChar character) { return character.isDigit(); });
    return text.first(end - text.begin());
}

} // namespace

QStringList AttachmentRefs::ids(QStringView html)
{
    QStringList ids;
    QSet<QStringView> seen;
    for (qsizetype slash = html.indexOf(u'/'); slash >= 0; slash = html.indexOf(u'/', slash + 1)) {
        const QStringView id = leadingDigits(afterPrefix(html.sliced(slash + 1)));
        if (id.isEmpty() || seen.contains(id))
            continue;
        seen.insert(id);
        ids.append(id.toString());
    }
    return ids;
}

std::optional<ADFNode> AttachmentRefs::tied(const std::optional<ADFNode> &document,
                                            const QStringList &ids)
{
    if (!document || ids.isEmpty())
        return document;
    qsizetype mediaSeen = 0;
    return ADF::annotated(*document, ids, mediaSeen);
}
