#pragma once

#include "platform/PrivateBus.h"

#include <QProcess>

/// The real GNOME keyring daemon on a bus of the test. Its files are in the given folder and are not deleted with this
/// object.
class KeyringDaemon
{
public:
    enum class Start { Unlocked, Locked };

    /// Starts the daemon. The keyring is created if it does not exist and is unlocked. A keyring that stays locked must
    /// exist; of its items the daemon then knows only what is stored without encryption.
    KeyringDaemon(PrivateBus &bus, const QString &folder, Start start = Start::Unlocked);
    ~KeyringDaemon();
    KeyringDaemon(const KeyringDaemon &) = delete;
    KeyringDaemon &operator=(const KeyringDaemon &) = delete;

    bool isRunning();
    /// Locks every collection.
    void lock();
    /// The label and the attributes of each item, read through the service's own interface.
    QStringList labels();
    QList<QMap<QString, QString>> attributes();

private:
    QVariant property(const QString &path, const QString &interface, const QString &name);
    QStringList items();

    QDBusConnection m_bus;
    QProcess m_daemon;
};
