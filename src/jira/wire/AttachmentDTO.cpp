#include "jira/wire/AttachmentDTO.h"

#include "jira/WebAddress.h"
#include "jira/wire/Models.h"

using namespace Qt::StringLiterals;

Attachment AttachmentDTO::model(const QDateTime &now) const
{
    return {.id = id,
            .filename = filename,
            .mimeType = mimeType.value_or(u"application/octet-stream"_s),
            .size = size.value_or(0),
            .created = created.value_or(now),
            .author = modelOf(author),
            .contentURL = webAddress(content),
            .thumbnailURL = webAddress(thumbnail)};
}
