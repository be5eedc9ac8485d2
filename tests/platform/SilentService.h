#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusVariant>
#include <QObject>

/// Holds the name of the store of secrets and never answers.
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
