#include "platform/CaptureFile.h"

#include "async/OffThread.h"
#include "model/Failure.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUuid>

using namespace Qt::StringLiterals;

namespace {

QByteArray encoded(const QImage &image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    return !image.isNull() && image.save(&buffer, "PNG") ? bytes : QByteArray();
}

constexpr QFileDevice::Permissions UserOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

} // namespace

CaptureFile::File::~File()
{
    QFile::remove(path);
    QDir().rmdir(QFileInfo(path).path());
}

CaptureFile CaptureFile::stored(const QByteArray &bytes, const QString &name, const QString &parent)
{
    const QString folder =
        parent + u"/Velmora-"_s + QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
    const bool isMade = QDir().mkdir(folder, UserOnly | QFileDevice::ExeOwner);
    const CaptureFile capture(folder + u'/' + name);
    QFile file(capture.m_file->path);
    if (!isMade || !file.open(QFile::WriteOnly | QFile::NewOnly, UserOnly) ||
        file.write(bytes) != bytes.size() || !file.flush())
        throw Failure(u"La capture n'a pas pu être enregistrée dans « "_s + parent + u" »."_s);
    return capture;
}

QCoro::Task<QByteArray> CaptureFile::png(QImage image)
{
    return offThread([image] { return encoded(image); });
}

QCoro::Task<CaptureFile> CaptureFile::store(QByteArray bytes, QString name, QString parent)
{
    return offThread([bytes, name, parent] { return stored(bytes, name, parent); });
}
