#pragma once

#include "simulator/Certificates.h"
#include "simulator/RawAnswer.h"
#include "simulator/RawRequest.h"

#include <QObject>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

#include <deque>
#include <functional>
#include <memory>
#include <optional>

/// A server on loopback that says exactly what a test scripts, byte for byte, over TCP or TLS. It lives on the thread of
/// the test and answers whenever that thread's events run:
///
///     RawServer server;
///     server.answerNext(RawAnswer::json("{}"));
///     server.answerNext(RawAnswer::nothing(RawAnswer::Ending::Reset));
///     ... a client asks server.url() ...
///     EXPECT_EQ(server.journal().size(), 2);
///
/// A request takes the next of the queued answers, and once they are used up what `answer` or `answerBy` gave; before
/// either was called, 404.
class RawServer : public QObject
{
    Q_OBJECT

public:
    using Answering = std::function<RawAnswer(const RawRequest &)>;

    /// Listens on 127.0.0.1; over TLS when there is a certificate. At `port` if that is free, else at any.
    explicit RawServer(std::optional<Certificates::Kind> certificate = {}, quint16 port = 0);
    ~RawServer() override;

    /// "http://127.0.0.1:<port>" or, over TLS, "https://localhost:<port>".
    QUrl url() const;
    quint16 port() const;

    void answer(RawAnswer answer);
    void answerBy(Answering answering);
    void answerNext(RawAnswer answer);
    /// What new connections meet before they can say anything: they are closed, torn down or left without a word.
    /// `KeepOpen`, as at first, serves them.
    void meetConnections(RawAnswer::Ending fate) { m_fate = fate; }
    /// Closes or resets every open connection, idle ones too.
    void dropConnections(RawAnswer::Ending how);
    /// From now on new connections are refused. The port stays taken, so that no other server answers in this one's place.
    void stopListening();

    /// Every complete request so far.
    const QList<RawRequest> &journal() const { return m_journal; }
    void clearJournal() { m_journal.clear(); }
    /// How many connections were opened so far; over TLS, those that agreed on keys.
    int connections() const { return m_connections; }
    /// How many of them are open now.
    int openConnections() const;

Q_SIGNALS:
    void requestReceived();

private:
    struct Connection;

    void accept();
    void read(const std::shared_ptr<Connection> &connection);
    RawAnswer nextAnswer(const RawRequest &request);

    std::unique_ptr<QTcpServer> m_server;
    QTcpSocket m_kept;
    bool m_isSecure = false;
    quint16 m_port = 0;
    RawAnswer::Ending m_fate = RawAnswer::Ending::KeepOpen;
    std::deque<RawAnswer> m_next;
    Answering m_answering;
    QList<RawRequest> m_journal;
    int m_connections = 0;
    QList<std::shared_ptr<Connection>> m_open;
};
