#include "simulator/server/RawServer.h"

#include <QSslServer>

#include <sys/socket.h>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 chunkSize = 1 << 20;
/// How much a socket reads ahead while the server does not read.
constexpr qint64 readAhead = 1 << 16;

/// Makes the connection end with a reset instead of a regular close.
void tearDown(QTcpSocket &socket)
{
    const linger hard{.l_onoff = 1, .l_linger = 0};
    setsockopt(int(socket.socketDescriptor()), SOL_SOCKET, SO_LINGER, &hard, sizeof(hard));
    socket.abort();
}

} // namespace

struct RawServer::Connection
{
    std::unique_ptr<QTcpSocket> socket;
    int number = 0;
    QByteArray arrived;
    qint64 bytesRead = 0;
    /// The rest of the response and the ending; set from a request until the end of its response.
    std::optional<RawAnswer> current;

    void say(RawAnswer answer)
    {
        socket->write(answer.bytes);
        answer.bytes.clear();
        current = std::move(answer);
        goOn();
    }

    /// Sends blanks as fast as the client reads them, then ends the response.
    void goOn()
    {
        if (!current)
            return;
        while (current->blanks > 0 && socket->bytesToWrite() < chunkSize) {
            const qint64 now = std::min(current->blanks, chunkSize);
            socket->write(QByteArray(now, ' '));
            current->blanks -= now;
        }
        if (current->blanks == 0)
            end();
    }

    void end()
    {
        switch (current->ending) {
        case RawAnswer::Ending::KeepOpen:
            current.reset();
            break;
        case RawAnswer::Ending::Close:
            socket->disconnectFromHost();
            break;
        case RawAnswer::Ending::Reset:
            if (flushed())
                tearDown(*socket);
            break;
        case RawAnswer::Ending::Stall:
            break;
        }
    }

    bool flushed()
    {
        socket->flush();
        return socket->bytesToWrite() == 0;
    }

    void meet(RawAnswer::Ending fate)
    {
        if (fate != RawAnswer::Ending::KeepOpen)
            say(RawAnswer::nothing(fate));
    }
};

RawServer::RawServer(std::optional<Certificates::Kind> certificate, quint16 port)
    : m_isSecure(certificate.has_value()),
      m_answering([](const RawRequest &) { return RawAnswer::http(404, {}); })
{
    if (certificate) {
        auto secure = std::make_unique<QSslServer>();
        secure->setSslConfiguration(Certificates::server(*certificate));
        m_server = std::move(secure);
    } else {
        m_server = std::make_unique<QTcpServer>();
    }
    connect(m_server.get(), &QTcpServer::pendingConnectionAvailable, this, &RawServer::accept);
    if (!m_server->listen(QHostAddress::LocalHost, port) &&
        !m_server->listen(QHostAddress::LocalHost))
        qFatal("No port to listen on: %s", qPrintable(m_server->errorString()));
    m_port = m_server->serverPort();
}

RawServer::~RawServer()
{
    dropConnections(RawAnswer::Ending::Close);
}

QUrl RawServer::url() const
{
    const QString root = m_isSecure ? u"https://localhost:%1"_s : u"http://127.0.0.1:%1"_s;
    return QUrl(root.arg(m_port));
}

quint16 RawServer::port() const
{
    return m_port;
}

void RawServer::answer(RawAnswer answer)
{
    m_answering = [answer = std::move(answer)](const RawRequest &) { return answer; };
}

void RawServer::answerBy(Answering answering)
{
    m_answering = std::move(answering);
}

void RawServer::answerNext(RawAnswer answer)
{
    m_next.push_back(std::move(answer));
}

void RawServer::readAtMost(qint64 bytes)
{
    m_mostRead = bytes;
    for (const auto &connection : m_open)
        connection->socket->setReadBufferSize(readAhead);
}

void RawServer::readOn()
{
    m_mostRead.reset();
    const auto open = m_open;
    for (const auto &connection : open) {
        connection->socket->setReadBufferSize(0);
        read(connection);
    }
}

void RawServer::dropConnections(RawAnswer::Ending how)
{
    const auto open = std::exchange(m_open, {});
    for (const auto &connection : open) {
        connection->socket->disconnect(this);
        if (how == RawAnswer::Ending::Reset)
            tearDown(*connection->socket);
        else
            connection->socket->close();
    }
}

void RawServer::stopListening()
{
    m_server->close();
    if (!m_kept.bind(QHostAddress::LocalHost, m_port, QAbstractSocket::ReuseAddressHint))
        qFatal("The port is somebody else's: %s", qPrintable(m_kept.errorString()));
}

int RawServer::openConnections() const
{
    return int(m_open.size());
}

void RawServer::accept()
{
    while (QTcpSocket *socket = m_server->nextPendingConnection()) {
        auto connection = std::make_shared<Connection>();
        socket->setParent(nullptr);
        connection->socket.reset(socket);
        connection->number = ++m_connections;
        m_open += connection;
        if (m_mostRead)
            socket->setReadBufferSize(readAhead);
        const std::weak_ptr weak = connection;
        connect(socket, &QTcpSocket::readyRead, this, [this, weak] {
            if (const auto alive = weak.lock())
                read(alive);
        });
        connect(socket, &QTcpSocket::bytesWritten, this, [this, weak] {
            if (const auto alive = weak.lock()) {
                alive->goOn();
                read(alive);
            }
        });
        connect(
            socket, &QTcpSocket::disconnected, this,
            [this, weak] { m_open.removeOne(weak.lock()); }, Qt::QueuedConnection);
        connection->meet(m_fate);
        read(connection);
    }
}

void RawServer::read(const std::shared_ptr<Connection> &connection)
{
    if (connection->socket->isOpen()) {
        const qint64 most = m_mostRead ? std::max<qint64>(0, *m_mostRead - connection->bytesRead)
                                       : connection->socket->bytesAvailable();
        const QByteArray bytes = connection->socket->read(most);
        if (connection->bytesRead == 0 && !bytes.isEmpty())
            ++m_usedConnections;
        connection->bytesRead += bytes.size();
        connection->arrived += bytes;
    }
    while (!connection->current) {
        std::optional<RawRequest> request = takeRequest(connection->arrived);
        if (!request)
            return;
        request->connection = connection->number;
        m_journal += *request;
        respond(connection, *request);
        Q_EMIT requestReceived();
    }
}

void RawServer::respond(const std::shared_ptr<Connection> &connection, const RawRequest &request)
{
    if (!m_isHeldBack || !m_isHeldBack(request))
        return connection->say(nextAnswer(request));
    connection->current = RawAnswer::nothing(RawAnswer::Ending::Stall);
    m_heldBack.emplaceBack(connection, request);
}

void RawServer::release()
{
    m_isHeldBack = nullptr;
    for (const auto &[weak, request] : std::exchange(m_heldBack, {})) {
        const auto connection = weak.lock();
        if (!connection)
            continue;
        connection->say(nextAnswer(request));
        read(connection);
    }
}

RawAnswer RawServer::nextAnswer(const RawRequest &request)
{
    if (m_next.empty())
        return m_answering(request);
    RawAnswer answer = std::move(m_next.front());
    m_next.pop_front();
    return answer;
}
