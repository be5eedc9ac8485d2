#pragma once

#include "model/ADFNode.h"
#include "model/Attachment.h"

/// Records that the tests of attachments share.
namespace AttachmentSamples {

inline Attachment file(const QString &id, const QString &name,
                       const QString &mimeType = QStringLiteral("text/plain"))
{
    Attachment attachment;
    attachment.id = id;
    attachment.filename = name;
    attachment.mimeType = mimeType;
    attachment.size = 386;
    return attachment;
}

inline Attachment picture(const QString &id, const QString &name)
{
    return file(id, name, QStringLiteral("image/png"));
}

inline ADFNode media(const ADFAttributes &attributes)
{
    return {.type = QStringLiteral("media"), .attrs = attributes};
}

inline ADFNode mediaWithID(const QString &id)
{
    return media({{QStringLiteral("velmoraAttachmentID"), id}});
}

inline ADFNode mediaWithAlt(const QString &alt)
{
    return media({{QStringLiteral("alt"), alt}});
}

} // namespace AttachmentSamples
