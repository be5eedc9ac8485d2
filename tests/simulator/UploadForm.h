#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

/// A file of a form, as a browser or a program sends it.
struct UploadedFile
{
    QString filename;
    QString mimeType;
    QByteArray content;
};

/// The files of a body of the type "multipart/form-data"; nothing when it is no such form, is cut short, or has a part
/// that is no file under the name "file".
std::optional<QList<UploadedFile>> filesOfForm(const QByteArray &contentType,
                                               const QByteArray &body);
