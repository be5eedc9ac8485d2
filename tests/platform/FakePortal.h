#pragma once

#include "platform/PrivateBus.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusVariant>
#include <QObject>

#include <map>

/// The settings of a desktop portal, with values set by a test. Reading any other setting fails.
class FakePortal : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    explicit FakePortal(QDBusConnection bus);

    /// Sets the value that a read returns.
    void set(const QString &group, const QString &key, const QVariant &value);
    /// Sets the value and notifies listeners.
    void change(const QString &group, const QString &key, const QVariant &value);
    int reads() const { return m_reads; }

    Q_SCRIPTABLE QDBusVariant Read(const QString &group, const QString &key);

Q_SIGNALS:
    Q_SCRIPTABLE void SettingChanged(const QString &group, const QString &key,
                                     const QDBusVariant &value);

private:
    QDBusConnection m_bus;
    std::map<QString, QVariant> m_values;
    int m_reads = 0;
};
