#pragma once

#include "screens/attachments/facts/AttachmentFile.h"
#include "screens/attachments/facts/UploadFacts.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Sample attachments for the gallery.
class SampleFiles : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// One for each kind of file. The picture cannot be fetched.
    Q_PROPERTY(QList<AttachmentFile> files READ files CONSTANT FINAL)
    /// A file whose name is a trick.
    Q_PROPERTY(AttachmentFile trick READ trick CONSTANT FINAL)
    /// An upload that is under way.
    Q_PROPERTY(UploadFacts upload READ upload CONSTANT FINAL)

public:
    QList<AttachmentFile> files() const;
    AttachmentFile trick() const;
    UploadFacts upload() const;
};
