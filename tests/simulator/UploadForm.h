#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

/// A file in a multipart form.
struct UploadedFile
{
    QString filename;
    QString mimeType;
    QByteArray content;
};

/// The files in a body of the type "multipart/form-data"; nothing if the body is not such a form, is truncated, or
/// contains a part that is not a file with the name "file".
std::optional<QList<UploadedFile>> filesOfForm(const QByteArray &contentType,
                                               const QByteArray &body);
