#include "screens/attachments/media/CommentFiles.h"

#include "richtext/ADFQueries.h"
#include "richtext/AttachmentRefs.h"

#include <QSet>

namespace {

/// The attachment that a link leads to; empty if it leads elsewhere.
QString linkedID(const QString &address, const QList<Attachment> &attachments)
{
    const QStringList ids = AttachmentRefs::ids(address);
    if (!ids.isEmpty())
        return ids.first();
    for (const Attachment &attachment : attachments) {
        const bool isContent =
            attachment.contentURL && attachment.contentURL->toString(QUrl::FullyEncoded) == address;
        if (isContent)
            return attachment.id;
    }
    return {};
}

QStringList wantedIDs(const Comment &comment, const QList<Attachment> &attachments)
{
    QStringList ids = comment.attachmentIDs;
    if (!comment.body)
        return ids;
    for (const QString &address : ADF::linkURLs(*comment.body))
        ids += linkedID(address, attachments);
    return ids;
}

} // namespace

QList<Attachment> referencedFiles(const Comment &comment, const QList<Attachment> &attachments)
{
    const QStringList shown = comment.body ? ADF::mediaAttachmentIDs(*comment.body) : QStringList();
    QSet<QString> done(shown.begin(), shown.end());
    QList<Attachment> referenced;
    for (const QString &id : wantedIDs(comment, attachments)) {
        if (done.contains(id))
            continue;
        done.insert(id);
        const auto found = std::ranges::find(attachments, id, &Attachment::id);
        if (found != attachments.end())
            referenced += *found;
    }
    return referenced;
}
