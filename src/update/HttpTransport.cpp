#include "update/HttpTransport.h"

#include "async/OffThread.h"
#include "http/TransportError.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 ChunkSize = 0x100000;

Failure unreadable(const QString &path)
{
    return Failure(u"Le fichier « "_s + path + u" » n'a pas pu être lu."_s);
}

void open(QFile &file, qint64 largest)
{
    // A pipe or a device has no size.
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly))
        throw unreadable(file.fileName());
    if (file.size() > largest)
        throw TransportError(TransportError::Kind::TooLarge);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    open(file, HttpTransport::LargestFeed);
    return file.read(HttpTransport::LargestFeed);
}

UpdateTransport::Archive copyOf(const QString &path, const QString &nameTemplate, qint64 largest)
{
    QFile file(path);
    open(file, largest);
    auto copy = std::make_shared<QTemporaryFile>(nameTemplate);
    if (!copy->open())
        throw TransportError(TransportError::Kind::NotStored);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (QByteArray piece = file.read(ChunkSize); !piece.isEmpty(); piece = file.read(ChunkSize)) {
        hash.addData(piece);
        if (copy->pos() + piece.size() > largest || copy->write(piece) != piece.size())
            throw TransportError(TransportError::Kind::NotStored);
    }
    if (file.error() != QFile::NoError || !copy->flush())
        throw unreadable(path);
    return {.status = {}, .file = std::move(copy), .sha256 = hash.result().toHex()};
}

} // namespace

HttpTransport::HttpTransport(Clock &clock, QString temporaryFolder, qint64 largestArchive)
    : m_session(Identity{}, clock),
      m_temporaryFolder(std::move(temporaryFolder)),
      m_largestArchive(largestArchive)
{
}

QCoro::Task<UpdateTransport::Document> HttpTransport::readFeed(QUrl address)
{
    if (address.isLocalFile()) {
        auto reading = offThread([path = address.toLocalFile()] { return contentOf(path); });
        co_return Document{.status = {}, .body = co_await reading};
    }
    HttpRequest request;
    request.url = std::move(address);
    request.limits = {.idle = FeedIdleLimit, .whole = FeedWholeLimit};
    request.mostInMemory = LargestFeed;
    const HttpAnswer answer = co_await m_session.send(std::move(request));
    co_return Document{.status = answer.status, .body = answer.body};
}

QCoro::Task<UpdateTransport::Archive> HttpTransport::fetchArchive(QUrl address)
{
    const QString nameTemplate = m_temporaryFolder + u"/Velmora-XXXXXX"_s;
    if (address.isLocalFile()) {
        auto copying =
            offThread([path = address.toLocalFile(), nameTemplate, largest = m_largestArchive] {
                return copyOf(path, nameTemplate, largest);
            });
        co_return co_await copying;
    }
    HttpRequest request;
    request.url = std::move(address);
    request.limits = {.idle = ArchiveIdleLimit, .whole = ArchiveWholeLimit};
    request.saveAs = nameTemplate;
    request.mostStored = m_largestArchive;
    // The body of a failure is not used.
    request.mostInMemory = LargestFeed;
    const HttpAnswer answer = co_await m_session.send(std::move(request));
    co_return Archive{.status = answer.status, .file = answer.file, .sha256 = answer.sha256};
}
