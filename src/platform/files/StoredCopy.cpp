#include "platform/files/StoredCopy.h"

#include "async/OffThread.h"
#include "model/Failure.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStorageInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 ChunkBytes = qint64(1024) * 1024;

[[noreturn]] void fail(const QString &path, const QString &reason)
{
    throw Failure(u"Impossible d'enregistrer « "_s + QFileInfo(path).fileName() + u" » : "_s +
                  reason);
}

QString reasonNotToOpen(const QString &path)
{
    const QFileInfo place(path);
    const QFileInfo folder(place.absolutePath());
    if (place.isDir())
        return u"un dossier porte ce nom."_s;
    if (!folder.isDir())
        return u"le dossier n'existe pas."_s;
    return u"tu n'as pas le droit d'écrire dans ce dossier."_s;
}

QString reasonNotToWrite(const QString &path, qint64 bytes)
{
    const QStorageInfo disk(QFileInfo(path).absolutePath());
    const bool isFull = disk.isValid() && disk.bytesAvailable() < bytes;
    return isFull ? u"il n'y a plus assez de place sur le disque."_s : u"l'écriture a échoué."_s;
}

void copyInto(QFile &source, QSaveFile &target)
{
    while (true) {
        const QByteArray chunk = source.read(ChunkBytes);
        if (source.error() != QFileDevice::NoError)
            fail(target.fileName(), u"le fichier n'a pas pu être lu."_s);
        if (chunk.isEmpty())
            return;
        if (target.write(chunk) != chunk.size())
            fail(target.fileName(), reasonNotToWrite(target.fileName(), source.size()));
    }
}

/// Returns a value because a function on another thread must have one.
bool copied(const QString &from, const QString &path)
{
    if (path.isEmpty())
        throw Failure(u"On ne peut enregistrer que sur cet ordinateur."_s);
    QFile source(from);
    if (!source.open(QFile::ReadOnly))
        fail(path, u"le fichier téléchargé n'existe plus."_s);
    if (QFileInfo(from) == QFileInfo(path))
        return true;
    // A temporary file beside the target, which is renamed when it is complete.
    QSaveFile target(path);
    if (QFileInfo(path).isDir() || !target.open(QFile::WriteOnly))
        fail(path, reasonNotToOpen(path));
    copyInto(source, target);
    if (!target.commit())
        fail(path, reasonNotToWrite(path, source.size()));
    return true;
}

} // namespace

QCoro::Task<> storeCopy(QUrl source, QUrl place)
{
    auto copy = [from = source.toLocalFile(), to = place.toLocalFile()] {
        return copied(from, to);
    };
    co_await offThread(std::move(copy));
}
