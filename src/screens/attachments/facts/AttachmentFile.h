#pragma once

#include "model/Attachment.h"
#include "screens/attachments/facts/FileKind.h"

#include <QMetaType>
#include <QUrl>
#include <QtQml/qqml.h>
#include <QtQml/qqmlregistration.h>

/// An attachment with the texts and the pictures that screens show of it.
struct AttachmentFile
{
    Q_GADGET
    QML_VALUE_TYPE(attachmentFile)
    Q_PROPERTY(QString id READ id CONSTANT FINAL)
    /// The file name; tricks with invisible characters are visible in it.
    Q_PROPERTY(QString name READ name CONSTANT FINAL)
    /// "6 Ko"
    Q_PROPERTY(QString sizeText READ sizeText CONSTANT FINAL)
    /// Its media type is that of a picture.
    Q_PROPERTY(bool isPicture READ isPicture CONSTANT FINAL)
    /// The thumbnail of a picture or else the picture itself. Empty for other files.
    Q_PROPERTY(QUrl picture READ picture CONSTANT FINAL)
    /// The symbol of its type.
    Q_PROPERTY(QString symbol READ symbol CONSTANT FINAL)
    /// What its tile tells under the pointer.
    Q_PROPERTY(QString tileHint READ tileHint CONSTANT FINAL)
    /// What it tells under the pointer inside a text.
    Q_PROPERTY(QString inlineHint READ inlineHint CONSTANT FINAL)
    /// How it is previewed: exactly one of these is true.
    Q_PROPERTY(bool previewsAsPicture READ previewsAsPicture CONSTANT FINAL)
    Q_PROPERTY(bool previewsAsPdf READ previewsAsPdf CONSTANT FINAL)
    Q_PROPERTY(bool previewsAsText READ previewsAsText CONSTANT FINAL)
    Q_PROPERTY(bool previewsAsFacts READ previewsAsFacts CONSTANT FINAL)

public:
    Attachment attachment;

    const QString &id() const { return attachment.id; }
    QString name() const;
    QString sizeText() const;
    bool isPicture() const;
    QUrl picture() const;
    QString symbol() const;
    QString tileHint() const;
    QString inlineHint() const;

    bool previewsAsPicture() const { return preview() == PreviewKind::Picture; }
    bool previewsAsPdf() const { return preview() == PreviewKind::Pdf; }
    bool previewsAsText() const { return preview() == PreviewKind::Text; }
    bool previewsAsFacts() const { return preview() == PreviewKind::Facts; }

    bool operator==(const AttachmentFile &) const = default;

private:
    PreviewKind preview() const;
};
