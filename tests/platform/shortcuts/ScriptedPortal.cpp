#include "platform/shortcuts/ScriptedPortal.h"

#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>

using namespace Qt::StringLiterals;

namespace {

const auto Path = u"/org/freedesktop/portal/desktop"_s;
const auto Shortcuts = u"org.freedesktop.portal.GlobalShortcuts"_s;
const auto Refused = u"org.freedesktop.portal.Error.NotAllowed"_s;

QString pathFor(const QDBusMessage &message, const QString &kind, const QVariant &token)
{
    QString sender = message.service().mid(1);
    sender.replace(u'.', u'_');
    return Path + u'/' + kind + u'/' + sender + u'/' + token.toString();
}

} // namespace

ScriptedPortal::ScriptedPortal(QDBusConnection bus, QVariant version)
    : m_bus(std::move(bus)), m_version(std::move(version))
{
    qDBusRegisterMetaType<PortalShortcut>();
    qDBusRegisterMetaType<QList<PortalShortcut>>();
    m_bus.registerVirtualObject(Path, this, QDBusConnection::SubPath);
    m_bus.registerService(u"org.freedesktop.portal.Desktop"_s);
}

void ScriptedPortal::respond(const Call &call, uint response, const QVariantMap &results)
{
    send(call, call.request, u"org.freedesktop.portal.Request"_s, u"Response"_s,
         {response, results});
}

void ScriptedPortal::grant(const Call &call)
{
    respond(call, 0, {{u"session_handle"_s, call.session}});
}

void ScriptedPortal::send(const Call &call, const QString &path, const QString &interface,
                          const QString &signal, const QVariantList &values)
{
    auto message = QDBusMessage::createTargetedSignal(call.caller, path, interface, signal);
    message.setArguments(values);
    m_bus.send(message);
}

void ScriptedPortal::activate(const Call &bind, const QString &id, const QVariantMap &options)
{
    send(bind, Path, Shortcuts, u"Activated"_s,
         {QVariant::fromValue(QDBusObjectPath(bind.session)), id, quint64(4711), options});
}

QVariantMap ScriptedPortal::bound(const QList<PortalShortcut> &shortcuts)
{
    return {{u"shortcuts"_s, QVariant::fromValue(shortcuts)}};
}

PortalShortcut ScriptedPortal::withKeys(const QString &id, const QVariant &keys)
{
    return {id, {{u"trigger_description"_s, keys}}};
}

QString ScriptedPortal::introspect(const QString & /*path*/) const
{
    return {};
}

bool ScriptedPortal::handleMessage(const QDBusMessage &message, const QDBusConnection &connection)
{
    connection.send(replyTo(message));
    return true;
}

QDBusMessage ScriptedPortal::replyTo(const QDBusMessage &message)
{
    if (message.member() == u"Get"_s)
        return m_version.isValid()
                   ? message.createReply(QVariant::fromValue(QDBusVariant(m_version)))
                   : message.createErrorReply(QDBusError::InvalidArgs, u"No such interface"_s);
    if (message.member() == u"Close"_s) {
        closed += message.path();
        return message.createReply();
    }
    const auto options = qdbus_cast<QVariantMap>(message.arguments().constLast());
    Call call{.method = message.member(),
              .arguments = message.arguments(),
              .caller = message.service(),
              .request = ownRequest,
              .session = message.arguments().constFirst().value<QDBusObjectPath>().path()};
    if (call.request.isEmpty())
        call.request = pathFor(message, u"request"_s, options.value(u"handle_token"_s));
    if (message.member() == u"CreateSession"_s)
        call.session = pathFor(message, u"session"_s, options.value(u"session_handle_token"_s));
    calls += call;
    if (message.member() == u"ConfigureShortcuts"_s)
        return message.createReply();
    if (refuses)
        return message.createErrorReply(Refused, u"An app id is required"_s);
    if (strangeReply.isValid())
        return message.createReply(strangeReply);
    return message.createReply(QVariant::fromValue(QDBusObjectPath(call.request)));
}
