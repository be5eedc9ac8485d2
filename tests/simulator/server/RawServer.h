#pragma once

#include "simulator/server/Certificates.h"
#include "simulator/server/RawAnswer.h"
#include "simulator/server/RawRequest.h"

#include <QObject>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

#include <deque>
#include <functional>
#include <memory>
#include <optional>

/// A server on the loopback interface that sends exactly the bytes that a test scripts, over TCP or TLS. It belongs to
/// the thread of the test and responds whenever the event loop of that thread runs:
///
///     RawServer server;
///     server.answerNext(RawAnswer::json("{}"));
///     server.answerNext(RawAnswer::nothing(RawAnswer::Ending::Reset));
///     ... a client asks server.url() ...
///     EXPECT_EQ(server.journal().size(), 2);
///
/// A request gets the next queued response. If the queue is empty, it gets the response set by `answer` or `answerBy`,
/// or
/// 404 if neither was called.
class RawServer : public QObject
{
    Q_OBJECT

public:
    using Answering = std::function<RawAnswer(const RawRequest &)>;

    /// Listens on 127.0.0.1, over TLS if a certificate is given. Uses `port` if it is free, otherwise any free port.
    explicit RawServer(std::optional<Certificates::Kind> certificate = {}, quint16 port = 0);
    ~RawServer() override;

    /// "http://127.0.0.1:<port>" or, over TLS, "https://localhost:<port>".
    QUrl url() const;
    quint16 port() const;

    void answer(RawAnswer answer);
    void answerBy(Answering answering);
    void answerNext(RawAnswer answer);
    /// What happens to new connections before they can send a request: they are closed, reset, or left without a
    /// response. With `KeepOpen`, the initial value, they are served.
    void meetConnections(RawAnswer::Ending fate) { m_fate = fate; }
    /// From now on, reads only this much of each connection, as over a line that has come to a halt. A client can send a
    /// few megabytes more, which the system keeps.
    void readAtMost(qint64 bytes);
    /// Reads everything again.
    void readOn();
    /// Closes or resets every open connection, including idle ones.
    void dropConnections(RawAnswer::Ending how);
    /// From now on, requests for which this is true wait until `release`. They are in the journal already.
    void holdBack(std::function<bool(const RawRequest &)> which)
    {
        m_isHeldBack = std::move(which);
    }
    /// Responds to the requests that wait, in the order received, and holds no request back any more.
    void release();
    /// Refuses new connections from now on. The port stays reserved, so that no other server can use it.
    void stopListening();

    /// All complete requests received so far.
    const QList<RawRequest> &journal() const { return m_journal; }
    void clearJournal() { m_journal.clear(); }
    /// The number of connections opened so far; over TLS, only those that completed the handshake.
    int connections() const { return m_connections; }
    /// The number of connections over which anything was received. The network stack may open a further one after a
    /// connection broke, without a request for it.
    int usedConnections() const { return m_usedConnections; }
    /// The number of connections that are currently open.
    int openConnections() const;

Q_SIGNALS:
    void requestReceived();

private:
    struct Connection;

    void accept();
    void read(const std::shared_ptr<Connection> &connection);
    void respond(const std::shared_ptr<Connection> &connection, const RawRequest &request);
    RawAnswer nextAnswer(const RawRequest &request);

    std::unique_ptr<QTcpServer> m_server;
    QTcpSocket m_kept;
    bool m_isSecure = false;
    quint16 m_port = 0;
    RawAnswer::Ending m_fate = RawAnswer::Ending::KeepOpen;
    /// How much is read of each connection; absent for everything.
    std::optional<qint64> m_mostRead;
    std::deque<RawAnswer> m_next;
    Answering m_answering;
    std::function<bool(const RawRequest &)> m_isHeldBack;
    QList<std::pair<std::weak_ptr<Connection>, RawRequest>> m_heldBack;
    QList<RawRequest> m_journal;
    int m_connections = 0;
    int m_usedConnections = 0;
    QList<std::shared_ptr<Connection>> m_open;
};
