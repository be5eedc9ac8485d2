#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

/// A file to upload.
struct FormFile
{
    /// In the request, double quotes are replaced by single quotes and line breaks by blanks.
    QString name;
    QByteArray content;

    bool operator==(const FormFile &) const = default;
};

/// The multipart form in which files are sent to Jira.
namespace MultipartForm {

/// A new boundary: "Velmora-" and a random UUID in upper case.
QByteArray newBoundary();
/// The media type for the name's extension; "application/octet-stream" if it is unknown or missing.
QByteArray mediaType(const QString &name);
/// The body of a request that contains the files in the given order.
QByteArray body(const QList<FormFile> &files, const QByteArray &boundary);

} // namespace MultipartForm
