#include "platform/AbruptBus.h"

#include <QLocalSocket>

#include <memory>

using namespace Qt::StringLiterals;

AbruptBus::AbruptBus()
{
    QObject::connect(&m_server, &QLocalServer::newConnection, &m_server,
                     [this] { relay(m_server.nextPendingConnection()); });
    m_server.listen(m_folder.filePath(u"bus"_s));
}

QString AbruptBus::address() const
{
    return u"unix:path="_s + m_server.fullServerName();
}

/// Passes everything on to a real bus and back. The client ends the authentication with "BEGIN"; what the bus sends
/// after that is its answer to the client's greeting, which opens the connection.
void AbruptBus::relay(QLocalSocket *client)
{
    auto *const bus = std::make_unique<QLocalSocket>(client).release();
    const auto isOpening = std::make_shared<bool>(false);
    QObject::connect(client, &QLocalSocket::readyRead, bus, [=] {
        const QByteArray bytes = client->readAll();
        *isOpening = *isOpening || bytes.contains("BEGIN\r\n");
        bus->write(bytes);
    });
    QObject::connect(bus, &QLocalSocket::readyRead, client, [=, this] {
        client->write(bus->readAll());
        client->flush();
        if (!*isOpening)
            return;
        ++connectionsEnded;
        client->disconnectFromServer();
    });
    const QString path = m_bus.address().section(u"unix:path="_s, 1).section(u',', 0, 0);
    bus->connectToServer(path);
}
