#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusObjectPath>
#include <QObject>
#include <QVariantMap>

/// The desktop's dialog for keyrings, with a simulated user who refuses every question or does not respond.
class FakePrompter : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.gnome.keyring.internal.Prompter")

public:
    enum class User { Refuses, IsAway };

    FakePrompter(QDBusConnection bus, User user);
    ~FakePrompter() override;

    /// The number of questions that were displayed.
    int asked() const { return m_asked; }

    Q_SCRIPTABLE void BeginPrompting(const QDBusObjectPath &callback);
    Q_SCRIPTABLE void PerformPrompt(const QDBusObjectPath &callback, const QString &type,
                                    const QVariantMap &properties, const QString &exchange);
    Q_SCRIPTABLE void StopPrompting(const QDBusObjectPath &callback);

private:
    void answer(const QDBusObjectPath &callback, const QString &reply);

    QDBusConnection m_bus;
    User m_user;
    int m_asked = 0;
};
