#include "platform/KeyringDaemon.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QTest>

#include <tuple>

using namespace Qt::StringLiterals;

namespace {

const auto Service = u"org.freedesktop.secrets"_s;
const auto ServicePath = u"/org/freedesktop/secrets"_s;
const auto Collection = u"/org/freedesktop/secrets/aliases/default"_s;

} // namespace

KeyringDaemon::KeyringDaemon(PrivateBus &bus, const QString &folder, Start start)
    : m_bus(bus.connection(u"keyring"_s))
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, bus.address());
    environment.insert(u"HOME"_s, folder);
    environment.insert(u"XDG_DATA_HOME"_s, folder);
    environment.insert(u"XDG_RUNTIME_DIR"_s, folder);
    m_daemon.setProcessEnvironment(environment);
    QStringList arguments{u"--foreground"_s, u"--components=secrets"_s};
    if (start == Start::Unlocked)
        arguments += u"--unlock"_s;
    m_daemon.start(u"gnome-keyring-daemon"_s, arguments);
    if (start == Start::Unlocked)
        m_daemon.write("un mot de passe");
    m_daemon.closeWriteChannel();
    // The test itself checks whether the daemon runs.
    std::ignore = QTest::qWaitFor(
        [this] { return isRunning() || m_daemon.state() == QProcess::NotRunning; }, 10000);
}

KeyringDaemon::~KeyringDaemon()
{
    m_daemon.terminate();
    m_daemon.waitForFinished();
}

bool KeyringDaemon::isRunning()
{
    return m_bus.interface() && m_bus.interface()->isServiceRegistered(Service);
}

void KeyringDaemon::lock()
{
    auto message = QDBusMessage::createMethodCall(Service, ServicePath,
                                                  u"org.freedesktop.Secret.Service"_s, u"Lock"_s);
    message << QVariant::fromValue(QList{QDBusObjectPath(Collection)});
    m_bus.call(message);
}

QStringList KeyringDaemon::labels()
{
    QStringList result;
    for (const QString &path : items())
        result += property(path, u"org.freedesktop.Secret.Item"_s, u"Label"_s).toString();
    return result;
}

QList<QMap<QString, QString>> KeyringDaemon::attributes()
{
    QList<QMap<QString, QString>> result;
    for (const QString &path : items()) {
        const QVariant value = property(path, u"org.freedesktop.Secret.Item"_s, u"Attributes"_s);
        result += qdbus_cast<QMap<QString, QString>>(value.value<QDBusArgument>());
    }
    return result;
}

QVariant KeyringDaemon::property(const QString &path, const QString &interface, const QString &name)
{
    auto message = QDBusMessage::createMethodCall(Service, path,
                                                  u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    message << interface << name;
    return m_bus.call(message).arguments().value(0).value<QDBusVariant>().variant();
}

QStringList KeyringDaemon::items()
{
    const QVariant value = property(Collection, u"org.freedesktop.Secret.Collection"_s, u"Items"_s);
    QStringList result;
    for (const auto &path : qdbus_cast<QList<QDBusObjectPath>>(value.value<QDBusArgument>()))
        result += path.path();
    return result;
}
