#pragma once

#include "platform/shortcuts/linux/PortalShortcut.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>

/// The global shortcuts of a desktop portal. It records what it is asked, and responds when a test says so.
class ScriptedPortal : public QDBusVirtualObject
{
    Q_OBJECT

public:
    /// Serves from now on. `version` may have any type; if it is invalid, the portal lacks the interface.
    explicit ScriptedPortal(QDBusConnection bus, QVariant version = 1U);

    struct Call
    {
        QString method;
        QVariantList arguments;
        /// The unique name of the caller.
        QString caller;
        /// The path of the request whose response the caller awaits.
        QString request;
        /// The path of the session that is created, or that the call is about.
        QString session;
    };
    QList<Call> calls;
    /// The paths of requests and sessions that the program has closed.
    QStringList closed;
    /// The path in replies instead of the one that the caller expects.
    QString ownRequest;
    /// Instead of a path, replies have this value.
    QVariant strangeReply;
    bool refuses = false;

    /// Ends the request of a call: 0 stands for success, 1 for a cancellation, 2 for another end.
    void respond(const Call &call, uint response, const QVariantMap &results = {});
    /// Ends a call of CreateSession with success.
    void grant(const Call &call);
    /// Sends a signal of any object with any values.
    void send(const Call &call, const QString &path, const QString &interface,
              const QString &signal, const QVariantList &values);
    void activate(const Call &bind, const QString &id, const QVariantMap &options = {});

    /// The results of a session in which these shortcuts are bound.
    static QVariantMap bound(const QList<PortalShortcut> &shortcuts);
    /// A shortcut with the keys that the portal tells for it.
    static PortalShortcut withKeys(const QString &id, const QVariant &keys);

    QString introspect(const QString &path) const override;
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;

private:
    QDBusMessage replyTo(const QDBusMessage &message);

    QDBusConnection m_bus;
    QVariant m_version;
};
