#include "screens/attachments/facts/AttachmentFile.h"

#include "model/text/VisibleText.h"
#include "screens/attachments/facts/ByteCount.h"

using namespace Qt::StringLiterals;

QString AttachmentFile::name() const
{
    return visibleText(attachment.filename);
}

QString AttachmentFile::sizeText() const
{
    return byteCountText(attachment.size);
}

bool AttachmentFile::isPicture() const
{
    return isPictureType(attachment.mimeType);
}

QUrl AttachmentFile::picture() const
{
    if (!isPicture())
        return {};
    return attachment.thumbnailURL.value_or(attachment.contentURL.value_or(QUrl()));
}

QString AttachmentFile::symbol() const
{
    return fileSymbol(attachment.mimeType, attachment.filename);
}

QString AttachmentFile::tileHint() const
{
    const QString author = attachment.author ? attachment.author->name : u"?"_s;
    return name() + u'\n' + author + u" · clic : aperçu, double-clic : ouvrir"_s;
}

QString AttachmentFile::inlineHint() const
{
    return name() + u" · clic pour l'aperçu"_s;
}

PreviewKind AttachmentFile::preview() const
{
    return previewKind(attachment.mimeType, attachment.filename);
}
