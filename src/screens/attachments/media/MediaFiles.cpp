#include "screens/attachments/media/MediaFiles.h"

#include "screens/attachments/media/MediaMatch.h"

void MediaFiles::setFiles(const QList<AttachmentFile> &files)
{
    if (m_files == files)
        return;
    m_files = files;
    Q_EMIT filesChanged();
    update();
}

void MediaFiles::setNode(const QVariant &node)
{
    const auto media = node.value<ADFNode>();
    if (m_node == media)
        return;
    m_node = media;
    Q_EMIT nodeChanged();
    update();
}

void MediaFiles::update()
{
    QList<Attachment> attachments;
    for (const AttachmentFile &file : m_files)
        attachments += file.attachment;
    QList<MediaItem> items;
    for (const ADFNode &media : MediaMatch::mediaOf(m_node)) {
        const auto found = MediaMatch::match(media, attachments);
        items.append({found.has_value(), {found.value_or(Attachment())}});
    }
    if (m_items == items)
        return;
    m_items = items;
    Q_EMIT itemsChanged();
}
