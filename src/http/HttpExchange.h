#pragma once

#include "http/BodyDecoder.h"
#include "http/HttpAnswer.h"
#include "http/HttpRequest.h"
#include "http/Origin.h"
#include "http/TransportError.h"

#include <QCryptographicHash>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QObject>
#include <QPointer>

#include <expected>
#include <memory>
#include <optional>

using HttpOutcome = std::expected<HttpAnswer, TransportError::Kind>;

/// One request in progress: sends it, follows its redirects and collects the response. Belongs to the network thread;
/// deleting it ends the request.
class HttpExchange final : public QObject
{
    Q_OBJECT

public:
    /// Sends nothing before `start`.
    HttpExchange(HttpRequest request, Identity identity);
    ~HttpExchange() override;

    /// Starts the request. `shared` keeps the connections of reads open and must outlive this object.
    void start(QNetworkAccessManager &shared);

Q_SIGNALS:
    /// Bytes were sent or received.
    void progressed();
    /// The same for bytes of the body that were sent: how many in all.
    void sent(qint64 bytes);
    /// The request has ended. Emitted once, and no other signal follows.
    void finished(const HttpOutcome &outcome);

private:
    void transmit();
    void noteSent(qint64 bytes);
    QNetworkReply *sentOnce();
    QNetworkAccessManager &manager();
    void readHead();
    void takeBytes();
    bool store(QByteArrayView piece);
    bool storeInFile(QByteArrayView piece);
    bool openFile();
    void completeReply();
    std::optional<TransportError::Kind> flaw() const;
    void follow(const QByteArray &location);
    void finish(HttpOutcome outcome);
    void dropReply();
    bool isWithinBounds(qint64 size, qint64 most);
    int status() const;
    QByteArray location() const;

    HttpRequest m_request;
    Identity m_identity;
    QPointer<QNetworkAccessManager> m_shared;
    /// The separate manager of a write, so that the write does not share a connection.
    std::unique_ptr<QNetworkAccessManager> m_own;
    QPointer<QNetworkReply> m_reply;
    QList<QSslError> m_certificateErrors;
    std::unique_ptr<BodyDecoder> m_decoder;
    /// The number of bytes of the body as received, before decompression.
    qint64 m_received = 0;
    /// The number of bytes of the body that were stored in the file.
    qint64 m_stored = 0;
    /// The length of the body as announced, before decompression; absent if it is not known in advance.
    std::optional<qint64> m_announced;
    /// Why the response was rejected; absent if it was not.
    std::optional<TransportError::Kind> m_refusal;
    HttpAnswer m_answer;
    /// The hash of what is in the file.
    QCryptographicHash m_storedHash{QCryptographicHash::Sha256};
    int m_redirects = 0;
    bool m_isOver = false;
};
