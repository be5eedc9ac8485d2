#include "screens/attachments/media/MediaMatch.h"

#include "richtext/ADFQueries.h"

using namespace Qt::StringLiterals;

namespace {

template <typename Predicate>
std::optional<Attachment> first(const QList<Attachment> &attachments, Predicate predicate)
{
    const auto found = std::ranges::find_if(attachments, predicate);
    return found == attachments.end() ? std::nullopt : std::optional(*found);
}

} // namespace

QList<ADFNode> MediaMatch::mediaOf(const ADFNode &node)
{
    if (node.type == "media"_L1)
        return {node};
    QList<ADFNode> media = node.content.value_or(QList<ADFNode>());
    media.removeIf([](const ADFNode &child) { return child.type != "media"_L1; });
    return media;
}

std::optional<Attachment> MediaMatch::match(const ADFNode &media,
                                            const QList<Attachment> &attachments)
{
    const auto id = ADF::attribute(media, u"velmoraAttachmentID"_s);
    const auto alt = ADF::attribute(media, u"alt"_s);
    std::optional<Attachment> found;
    if (id)
        found = first(attachments, [&](const Attachment &one) { return one.id == *id; });
    if (!found && alt)
        found = first(attachments, [&](const Attachment &one) { return one.filename == *alt; });
    if (!found && alt)
        found = first(attachments, [&](const Attachment &one) {
            return one.filename.compare(*alt, Qt::CaseInsensitive) == 0;
        });
    return found;
}
