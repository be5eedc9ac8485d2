#include "state/composing/AttachmentLinks.h"

#include <QStringList>

using namespace Qt::StringLiterals;

QString attachmentLinks(const QList<Attachment> &attachments)
{
    QStringList lines;
    for (const Attachment &attachment : attachments) {
        if (attachment.contentURL)
            lines.append(u"📎 [%1](%2)"_s.arg(attachment.filename,
                                              attachment.contentURL->toString(QUrl::FullyEncoded)));
    }
    return lines.join(u'\n');
}
