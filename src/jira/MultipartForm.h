#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

/// One file of an upload.
struct FormFile
{
    /// Goes out with each double quote as a single one, and each line break as a blank.
    QString name;
    QByteArray content;

    bool operator==(const FormFile &) const = default;
};

/// The form in which files go to Jira.
namespace MultipartForm {

/// "Velmora-" and a random UUID in capitals.
QByteArray newBoundary();
/// The media type by the name's ending; "application/octet-stream" for an unknown one, or none.
QByteArray mediaType(const QString &name);
/// The body that holds the files in their order.
QByteArray body(const QList<FormFile> &files, const QByteArray &boundary);

} // namespace MultipartForm
