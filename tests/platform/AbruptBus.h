#pragma once

#include "platform/PrivateBus.h"

#include <QLocalServer>

class QLocalSocket;

/// A message bus that ends each connection right after it was opened, as a bus does that stops at that moment.
class AbruptBus
{
public:
    AbruptBus();

    QString address() const;
    int connectionsEnded = 0;

private:
    void relay(QLocalSocket *client);

    PrivateBus m_bus;
    QTemporaryDir m_folder;
    QLocalServer m_server;
};
