#include "jira/wire/CommentDTO.h"

#include "jira/wire/Models.h"
#include "richtext/AttachmentRefs.h"

Comment CommentDTO::model(const QDateTime &now) const
{
    const QStringList attachments = AttachmentRefs::ids(renderedBody.value_or(QString()));
    return {.id = id,
            .author = modelOf(author),
            .body = AttachmentRefs::tied(body, attachments),
            .created = created.value_or(now),
            .isInternal = jsdPublic == false,
            .restrictedTo = visibility ? visibility->value : std::nullopt,
            .attachmentIDs = attachments};
}
