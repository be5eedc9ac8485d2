#include "platform/linux/StatusHostLinux.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

using namespace Qt::StringLiterals;

namespace {

const auto Service = u"org.kde.StatusNotifierWatcher"_s;
const auto Path = u"/StatusNotifierWatcher"_s;

QDBusMessage question()
{
    auto message = QDBusMessage::createMethodCall(Service, Path,
                                                  u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    message.setArguments({Service, u"IsStatusNotifierHostRegistered"_s});
    // The query must not start the desktop's panel if it does not run.
    message.setAutoStartService(false);
    return message;
}

} // namespace

std::unique_ptr<StatusHost> StatusHost::ofThisSystem()
{
    return std::make_unique<StatusHostLinux>(QDBusConnection::sessionBus());
}

StatusHostLinux::StatusHostLinux(const QDBusConnection &bus)
    : m_bus(bus), m_watcher(Service, bus, QDBusServiceWatcher::WatchForOwnerChange)
{
    connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, &StatusHostLinux::ask);
    for (const auto &change :
         {u"StatusNotifierHostRegistered"_s, u"StatusNotifierHostUnregistered"_s})
        m_bus.connect(Service, Path, Service, change, this, SLOT(ask()));
    ask();
}

void StatusHostLinux::ask()
{
    if (!m_bus.isConnected())
        return;
    auto *call = new QDBusPendingCallWatcher(m_bus.asyncCall(question()), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, &StatusHostLinux::answer);
}

void StatusHostLinux::answer(QDBusPendingCallWatcher *call)
{
    const QDBusPendingReply<QDBusVariant> reply = *call;
    call->deleteLater();
    setIsPresent(!reply.isError() && reply.value().variant().toBool());
}

void StatusHostLinux::setIsPresent(bool present)
{
    if (std::exchange(m_isPresent, present) != present)
        Q_EMIT isPresentChanged();
}
