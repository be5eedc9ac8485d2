#pragma once

#include "platform/PrivateBus.h"

#include <QProcess>

/// The real keyring of the GNOME desktop on a bus of the test's own, with its files in the given folder, where they
/// outlive this object.
class KeyringDaemon
{
public:
    /// Starts the daemon with its keyring unlocked (and made, the first time).
    KeyringDaemon(PrivateBus &bus, const QString &folder);
    ~KeyringDaemon();
    KeyringDaemon(const KeyringDaemon &) = delete;
    KeyringDaemon &operator=(const KeyringDaemon &) = delete;

    bool isRunning();
    /// Locks every collection.
    void lock();
    /// Label and secret's attributes of each item, through the service's own interface.
    QStringList labels();
    QList<QMap<QString, QString>> attributes();

private:
    QVariant property(const QString &path, const QString &interface, const QString &name);
    QStringList items();

    QDBusConnection m_bus;
    QProcess m_daemon;
};
