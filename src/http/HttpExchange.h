#pragma once

#include "http/BodyDecoder.h"
#include "http/HttpAnswer.h"
#include "http/HttpRequest.h"
#include "http/Origin.h"
#include "http/TransportError.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QObject>
#include <QPointer>

#include <expected>
#include <memory>
#include <optional>

using HttpOutcome = std::expected<HttpAnswer, TransportError::Kind>;

/// One request on its way: sends it, follows it from redirect to redirect, and gathers the answer. Lives on the network
/// thread; deleting it ends what is under way.
class HttpExchange final : public QObject
{
    Q_OBJECT

public:
    HttpExchange(HttpRequest request, Identity identity);
    ~HttpExchange() override;

    /// `shared` keeps connections alive for the reads, and outlives this object.
    void start(QNetworkAccessManager &shared);

Q_SIGNALS:
    /// Something went out or came in.
    void progressed();
    /// Once, and nothing after it.
    void finished(const HttpOutcome &outcome);

private:
    void transmit();
    QNetworkReply *sent();
    QNetworkReply *sentOnce();
    void takeBytes();
    bool store(QByteArrayView piece);
    bool storeInFile(QByteArrayView piece);
    bool openFile();
    void completeReply();
    std::optional<TransportError::Kind> flaw() const;
    void follow(const QByteArray &location);
    void finish(HttpOutcome outcome);
    void dropReply();
    qsizetype announcedSize() const;
    int status() const;
    QByteArray location() const;

    HttpRequest m_request;
    Identity m_identity;
    QPointer<QNetworkAccessManager> m_shared;
    /// The manager of a write, so that it finds no connection to share.
    std::unique_ptr<QNetworkAccessManager> m_own;
    QPointer<QNetworkReply> m_reply;
    QList<QSslError> m_certificateErrors;
    std::unique_ptr<BodyDecoder> m_decoder;
    /// Bytes of the body as they came in, packed or not.
    qint64 m_received = 0;
    /// Why the bytes of the answer were refused, if they were.
    std::optional<TransportError::Kind> m_refusal;
    HttpAnswer m_answer;
    int m_redirects = 0;
    bool m_isOver = false;
};
