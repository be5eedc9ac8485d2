#include "jira/MultipartForm.h"

#include <QFileInfo>
#include <QMimeDatabase>
#include <QUuid>

namespace {

QByteArray quotable(QString name)
{
    name.replace(u'"', u'\'');
    // A line break in the name would end the header line that contains it.
    name.replace(u'\r', u' ');
    name.replace(u'\n', u' ');
    return name.toUtf8();
}

} // namespace

QByteArray MultipartForm::newBoundary()
{
    return "Velmora-" + QUuid::createUuid().toByteArray(QUuid::WithoutBraces).toUpper();
}

QByteArray MultipartForm::mediaType(const QString &name)
{
    if (QFileInfo(name).suffix().isEmpty())
        return "application/octet-stream";
    return QMimeDatabase().mimeTypeForFile(name, QMimeDatabase::MatchExtension).name().toUtf8();
}

QByteArray MultipartForm::body(const QList<FormFile> &files, const QByteArray &boundary)
{
    QByteArray body;
    for (const FormFile &file : files) {
        body += "--" + boundary + "\r\n";
        body += "Content-Disposition: form-data; name=\"file\"; filename=\"" + quotable(file.name) +
                "\"\r\n";
        body += "Content-Type: " + mediaType(file.name) + "\r\n\r\n";
        body += file.content;
        body += "\r\n";
    }
    return body + "--" + boundary + "--\r\n";
}
