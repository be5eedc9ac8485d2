#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QTemporaryDir>

/// A message bus of the test's own, gone with this object. Nothing is on it but what the test puts there: no service of
/// the machine is started by it.
class PrivateBus
{
public:
    PrivateBus();
    ~PrivateBus();
    PrivateBus(const PrivateBus &) = delete;
    PrivateBus &operator=(const PrivateBus &) = delete;

    bool isRunning() const { return !m_address.isEmpty(); }
    const QString &address() const { return m_address; }
    /// A new connection under the given name.
    QDBusConnection connection(const QString &name);

private:
    QTemporaryDir m_folder;
    QProcess m_daemon;
    QString m_address;
    QStringList m_names;
};
