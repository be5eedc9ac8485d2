#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusVariant>
#include <QObject>

/// Owns the bus name of the store for secrets and never responds.
class SilentService : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Secret.Service")

public:
    explicit SilentService(QDBusConnection bus);
    ~SilentService() override;

    bool wasAsked = false;

    Q_SCRIPTABLE QDBusVariant OpenSession(const QString &algorithm, const QDBusVariant &input);

private:
    QDBusConnection m_bus;
};
