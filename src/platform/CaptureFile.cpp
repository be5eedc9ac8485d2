#include "platform/CaptureFile.h"

#include "async/OffThread.h"
#include "model/Failure.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QUuid>

using namespace Qt::StringLiterals;

namespace {

QByteArray encoded(const QImage &image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    return !image.isNull() && image.save(&buffer, "PNG") ? bytes : QByteArray();
}

QUrl stored(const QByteArray &bytes, const QString &name, const QString &parent)
{
    const QDir folder(parent + u"/Velmora-"_s +
                      QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper());
    QFile file(folder.filePath(name));
    if (!folder.mkpath(u"."_s) || !file.open(QFile::WriteOnly) ||
        file.write(bytes) != bytes.size() || !file.flush())
        throw Failure(u"La capture n'a pas pu être enregistrée dans « "_s + parent + u" »."_s);
    return QUrl::fromLocalFile(file.fileName());
}

} // namespace

QCoro::Task<QByteArray> CaptureFile::png(QImage image)
{
    return offThread([image] { return encoded(image); });
}

QCoro::Task<QUrl> CaptureFile::store(QByteArray bytes, QString name, QString parent)
{
    return offThread([bytes, name, parent] { return stored(bytes, name, parent); });
}
