#include "http/HttpExchange.h"

#include "http/AnnouncedLength.h"
#include "http/HttpStatus.h"
#include "http/NetworkRequest.h"
#include "http/OneWayBody.h"
#include "http/Redirects.h"
#include "http/ReplyFailure.h"
#include "http/SystemProxies.h"

#include <QDir>
#include <QFileInfo>

namespace {

/// Parsers read slightly beyond the end of their input, and copy a body that has no reserved space after it.
constexpr qsizetype RoomBehind = 64;

} // namespace

HttpExchange::HttpExchange(HttpRequest request, Identity identity)
    : m_request(std::move(request)), m_identity(std::move(identity))
{
}

HttpExchange::~HttpExchange()
{
    dropReply();
}

void HttpExchange::start(QNetworkAccessManager &shared)
{
    m_shared = &shared;
    // Without this check, the network stack would also open local files.
    if (!Redirects::isAddress(m_request.url))
        return finish(std::unexpected(TransportError::Kind::NoWebAddress));
    transmit();
}

void HttpExchange::transmit()
{
    m_answer = {};
    m_decoder.reset();
    m_received = 0;
    m_stored = 0;
    m_announced.reset();
    m_storedHash.reset();
    m_certificateErrors.clear();
    m_reply = sentOnce();
    connect(m_reply, &QNetworkReply::uploadProgress, this, &HttpExchange::noteSent);
    connect(m_reply, &QNetworkReply::metaDataChanged, this, &HttpExchange::readHead);
    connect(m_reply, &QNetworkReply::readyRead, this, &HttpExchange::takeBytes);
    connect(m_reply, &QNetworkReply::sslErrors, this,
            [this](const QList<QSslError> &errors) { m_certificateErrors += errors; });
    connect(m_reply, &QNetworkReply::finished, this, &HttpExchange::completeReply);
}

void HttpExchange::noteSent(qint64 bytes)
{
    Q_EMIT progressed();
    // At its end, the stack announces that nothing of nothing was sent.
    if (bytes > 0)
        Q_EMIT sent(bytes);
}

QNetworkReply *HttpExchange::sentOnce()
{
    QNetworkRequest request = networkRequest(m_request, m_identity);
    // Only a body that cannot be read twice keeps the network stack from sending a request twice, so a request without
    // a body gets an empty one.
    auto body = std::make_unique<OneWayBody>(m_request.body.value_or(QByteArray()));
    request.setHeader(QNetworkRequest::ContentLengthHeader, body->bytesAvailable());
    request.setAttribute(QNetworkRequest::DoNotBufferUploadDataAttribute, true);
    // Otherwise the last bytes are not announced, because the stack does not know how long this body is.
    request.setAttribute(QNetworkRequest::EmitAllUploadProgressSignalsAttribute, true);
    if (m_request.purpose == HttpRequest::Purpose::Write)
        request.setRawHeader("Connection", "close");
    QNetworkReply *reply = manager().sendCustomRequest(request, m_request.verb, body.get());
    body.release()->setParent(reply);
    return reply;
}

QNetworkAccessManager &HttpExchange::manager()
{
    if (m_request.purpose == HttpRequest::Purpose::Read)
        return *m_shared;
    m_own = std::make_unique<QNetworkAccessManager>();
    m_own->setProxyFactory(std::make_unique<SystemProxies>().release());
    return *m_own;
}

void HttpExchange::readHead()
{
    Q_EMIT progressed();
    const auto length = announcedLength(*m_reply);
    if (!length)
        return finish(std::unexpected(length.error()));
    m_announced = *length;
}

void HttpExchange::takeBytes()
{
    Q_EMIT progressed();
    const QByteArray bytes = m_reply->readAll();
    m_received += bytes.size();
    if (!m_decoder)
        m_decoder = std::make_unique<BodyDecoder>(m_reply->rawHeader("Content-Encoding"));
    if (!m_decoder->feed(bytes, [this](QByteArrayView piece) { return store(piece); }))
        finish(std::unexpected(m_refusal.value_or(TransportError::Kind::Broken)));
}

bool HttpExchange::store(QByteArrayView piece)
{
    // The body of a redirect is not needed and may be long.
    if (Redirects::isRedirect(status(), location()))
        return true;
    if (m_request.saveAs && HttpStatus::isSuccess(status()))
        return storeInFile(piece);
    if (!isWithinBounds(m_answer.body.size() + piece.size(), m_request.mostInMemory))
        return false;
    if (m_answer.body.isEmpty())
        m_answer.body.reserve(m_announced.value_or(0) + RoomBehind);
    m_answer.body.append(piece);
    return true;
}

bool HttpExchange::isWithinBounds(qint64 size, qint64 most)
{
    if (std::max(m_announced.value_or(0), size) <= most)
        return true;
    m_refusal = TransportError::Kind::TooLarge;
    return false;
}

bool HttpExchange::storeInFile(QByteArrayView piece)
{
    m_stored += piece.size();
    if (!isWithinBounds(m_stored, m_request.mostStored))
        return false;
    const bool isStored = (m_answer.file || openFile()) &&
                          m_answer.file->write(piece.data(), piece.size()) == piece.size();
    if (!isStored)
        m_refusal = TransportError::Kind::NotStored;
    m_storedHash.addData(piece);
    return isStored;
}

bool HttpExchange::openFile()
{
    m_answer.file = std::make_shared<QTemporaryFile>(*m_request.saveAs);
    return QDir().mkpath(QFileInfo(*m_request.saveAs).path()) && m_answer.file->open();
}

void HttpExchange::completeReply()
{
    takeBytes();
    if (m_isOver)
        return;
    if (const auto found = flaw())
        return finish(std::unexpected(*found));
    // Qt 6.4 ends a reply at an informational response other than 100. The final one may still arrive on the
    // connection, so no other request may use it.
    if (HttpStatus::isInterim(status())) {
        m_shared->clearConnectionCache();
        return finish(std::unexpected(TransportError::Kind::Broken));
    }
    if (const QByteArray target = location(); Redirects::isRedirect(status(), target))
        return follow(target);
    m_answer.status = status();
    m_answer.mediaType = mediaType(m_reply->rawHeader("Content-Type"));
    for (const auto &[name, value] : m_reply->rawHeaderPairs())
        m_answer.headers.append(HttpHeader{name, value});
    // An empty body is stored as an empty file.
    if (m_request.saveAs && m_answer.isSuccess() && !(storeInFile({}) && m_answer.file->flush()))
        return finish(std::unexpected(m_refusal.value_or(TransportError::Kind::NotStored)));
    if (m_answer.file)
        m_answer.sha256 = m_storedHash.result().toHex();
    finish(std::move(m_answer));
}

std::optional<TransportError::Kind> HttpExchange::flaw() const
{
    if (const auto failure = replyFailure(*m_reply, m_certificateErrors))
        return failure;
    // For a response with an error status, the stack reports the status and not that the body is incomplete.
    if (m_received < m_announced.value_or(0))
        return TransportError::Kind::ConnectionLost;
    return m_decoder->isComplete() ? std::nullopt : std::optional(TransportError::Kind::Broken);
}

void HttpExchange::follow(const QByteArray &location)
{
    if (m_redirects == Redirects::Most)
        return finish(std::unexpected(TransportError::Kind::TooManyRedirects));
    ++m_redirects;
    auto next = Redirects::next(m_request, status(), location);
    if (!next)
        return finish(std::unexpected(next.error()));
    m_request = *std::move(next);
    dropReply();
    transmit();
}

void HttpExchange::finish(HttpOutcome outcome)
{
    m_isOver = true;
    dropReply();
    Q_EMIT finished(outcome);
}

void HttpExchange::dropReply()
{
    if (!m_reply)
        return;
    m_reply->disconnect(this);
    m_reply->abort();
    m_reply->deleteLater();
    m_reply = nullptr;
    if (m_own)
        m_own.release()->deleteLater();
}

int HttpExchange::status() const
{
    return m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

QByteArray HttpExchange::location() const
{
    return m_reply->rawHeader("Location");
}
