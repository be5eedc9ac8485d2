#include "platform/shortcuts/linux/PortalShortcuts.h"

#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QUuid>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

const auto Service = u"org.freedesktop.portal.Desktop"_s;
const auto Path = u"/org/freedesktop/portal/desktop"_s;
const auto Shortcuts = u"org.freedesktop.portal.GlobalShortcuts"_s;
const auto Request = u"org.freedesktop.portal.Request"_s;
const auto Session = u"org.freedesktop.portal.Session"_s;

// The values of a response. Others mean that the request ended for another reason.
constexpr uint Done = 0;
constexpr uint CancelledByUser = 1;
/// The first version with a dialog for shortcuts that are bound already.
constexpr uint WithConfiguration = 2;

QString newToken()
{
    return u"velmora_"_s + QUuid::createUuid().toString(QUuid::Id128);
}

/// The path of an object that the portal makes for this connection.
QString pathOf(const QDBusConnection &bus, const QString &kind, const QString &token)
{
    QString sender = bus.baseService().mid(1);
    sender.replace(u'.', u'_');
    return Path + u'/' + kind + u'/' + sender + u'/' + token;
}

QDBusMessage portalCall(const QString &interface, const QString &method)
{
    return QDBusMessage::createMethodCall(Service, Path, interface, method);
}

/// An empty text instead of a value of another type.
QString textIn(const QVariantMap &values, const QString &key)
{
    const QVariant value = values.value(key);
    return value.typeId() == QMetaType::QString ? value.toString() : QString();
}

QVariant offered()
{
    const auto one = [](QStringView id, const QString &description) {
        return PortalShortcut{id.toString(), {{u"description"_s, description}}};
    };
    return QVariant::fromValue(
        QList<PortalShortcut>{one(DesktopShortcuts::NewIssue, u"Nouveau ticket"_s),
                              one(DesktopShortcuts::Palette, u"Palette"_s)});
}

bool isOffered(const QString &id)
{
    return id == DesktopShortcuts::NewIssue || id == DesktopShortcuts::Palette;
}

} // namespace

PortalShortcuts::PortalShortcuts(QDBusConnection bus, Preferences &preferences)
    : m_bus(std::move(bus)), m_preferences(preferences)
{
    qDBusRegisterMetaType<PortalShortcut>();
    qDBusRegisterMetaType<QList<PortalShortcut>>();
    if (!m_bus.isConnected())
        return;
    follow();
    askVersion();
}

PortalShortcuts::~PortalShortcuts()
{
    closeSession();
}

/// The signals are awaited on every path, so that none is missed that arrives before the reply with its path. The service
/// name is left empty, because Qt would otherwise look up its owner on the bus and block until the response.
void PortalShortcuts::follow()
{
    m_watcher.setConnection(m_bus);
    m_watcher.addWatchedService(Service);
    connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString &, const QString &, const QString &owner) { restart(owner); });
    m_bus.connect({}, {}, Request, u"Response"_s, this, SLOT(takeResponse(QDBusMessage)));
    m_bus.connect({}, {}, Session, u"Closed"_s, this, SLOT(takeClosed(QDBusMessage)));
    m_bus.connect({}, Path, Shortcuts, u"Activated"_s, this, SLOT(takeActivated(QDBusMessage)));
    m_bus.connect({}, Path, Shortcuts, u"ShortcutsChanged"_s, this,
                  SLOT(takeChanged(QDBusMessage)));
}

/// The session and the requests have ended with the portal's process.
void PortalShortcuts::restart(const QString &owner)
{
    ++m_portals;
    m_step = Step::None;
    m_request.clear();
    m_session.clear();
    m_owner.clear();
    m_keys.clear();
    m_version = 0;
    Q_EMIT changed();
    if (!owner.isEmpty())
        askVersion();
}

void PortalShortcuts::askVersion()
{
    auto message = portalCall(u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    message.setArguments({Shortcuts, u"version"_s});
    call(message, [this](const QDBusMessage &reply) {
        if (reply.signature() != u"v"_s)
            return;
        const QVariant version = reply.arguments().constFirst().value<QDBusVariant>().variant();
        if (version.typeId() != QMetaType::UInt || version.toUInt() == 0)
            return;
        m_owner = reply.service();
        m_version = version.toUInt();
        Q_EMIT changed();
        if (m_preferences.flag(BoundKey.toString()).value_or(false))
            openSession();
    });
}

/// A session's shortcuts can be bound only once, so another dialog needs another session.
void PortalShortcuts::choose()
{
    if (!isPresent())
        return;
    if (m_step != Step::Bound || m_version < WithConfiguration)
        return openSession();
    auto message = portalCall(Shortcuts, u"ConfigureShortcuts"_s);
    message.setArguments(
        {QVariant::fromValue(QDBusObjectPath(m_session)), QString(), QVariantMap()});
    m_bus.send(message);
}

void PortalShortcuts::openSession()
{
    closeSession();
    m_step = Step::CreatesSession;
    const QString token = newToken();
    m_session = pathOf(m_bus, u"session"_s, token);
    request(u"CreateSession"_s, {}, {{u"session_handle_token"_s, token}});
}

void PortalShortcuts::bind(const QString &session)
{
    m_session = session;
    m_step = Step::Binds;
    request(u"BindShortcuts"_s,
            {QVariant::fromValue(QDBusObjectPath(session)), offered(), QString()}, {});
}

void PortalShortcuts::request(const QString &method, QVariantList arguments, QVariantMap options)
{
    const QString token = newToken();
    options.insert(u"handle_token"_s, token);
    m_request = pathOf(m_bus, u"request"_s, token);
    auto message = portalCall(Shortcuts, method);
    arguments << options;
    message.setArguments(arguments);
    call(message, [this, expected = m_request](const QDBusMessage &reply) {
        if (m_request != expected)
            return;
        if (reply.signature() != u"o"_s)
            return closeSession();
        // Portals before version 0.9 choose another path.
        m_request = reply.arguments().constFirst().value<QDBusObjectPath>().path();
    });
}

/// Passes the reply on, also an error, unless another process has become the portal since then.
void PortalShortcuts::call(const QDBusMessage &message, Reply reply)
{
    auto *watcher =
        std::make_unique<QDBusPendingCallWatcher>(m_bus.asyncCall(message), this).release();
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, watcher, portal = m_portals, reply = std::move(reply)] {
                watcher->deleteLater();
                if (portal == m_portals)
                    reply(watcher->reply());
            });
}

void PortalShortcuts::takeResponse(const QDBusMessage &message)
{
    if (message.service() != m_owner || m_request.isEmpty() || message.path() != m_request)
        return;
    m_request.clear();
    if (message.signature() != u"ua{sv}"_s)
        return closeSession();
    const uint response = message.arguments().constFirst().toUInt();
    const auto results = qdbus_cast<QVariantMap>(message.arguments().constLast());
    if (m_step == Step::Binds)
        return takeBound(response, results);
    // The portal tells the path as a text. It is the one that follows from the token.
    if (response == Done && results.value(u"session_handle"_s).toString() == m_session)
        bind(m_session);
    else
        closeSession();
}

/// A user who cancels or takes all keys away does not want the shortcuts at the next start either. The portal may fail for
/// other reasons.
void PortalShortcuts::takeBound(uint response, const QVariantMap &results)
{
    const auto shortcuts = portalShortcuts(results.value(u"shortcuts"_s));
    const bool isBound = response == Done && shortcuts && !shortcuts->isEmpty();
    const bool isEmpty = response == Done && shortcuts && shortcuts->isEmpty();
    if (isBound || isEmpty || response == CancelledByUser)
        m_preferences.setFlag(BoundKey.toString(), isBound);
    if (!isBound)
        return closeSession();
    m_step = Step::Bound;
    setKeys(*shortcuts);
}

void PortalShortcuts::closeSession()
{
    const auto close = [this](const QString &path, const QString &interface) {
        if (!path.isEmpty())
            m_bus.send(QDBusMessage::createMethodCall(m_owner, path, interface, u"Close"_s));
    };
    close(std::exchange(m_request, {}), Request);
    close(std::exchange(m_session, {}), Session);
    m_step = Step::None;
    setKeys({});
}

bool PortalShortcuts::isFromSession(const QDBusMessage &message, const QString &signature) const
{
    if (message.service() != m_owner || message.signature() != signature || m_session.isEmpty())
        return false;
    return message.arguments().constFirst().value<QDBusObjectPath>().path() == m_session;
}

void PortalShortcuts::takeActivated(const QDBusMessage &message)
{
    if (!isFromSession(message, u"osta{sv}"_s))
        return;
    const QString id = message.arguments().value(1).toString();
    const auto options = qdbus_cast<QVariantMap>(message.arguments().constLast());
    if (isOffered(id))
        Q_EMIT activated(id, textIn(options, u"activation_token"_s).toUtf8());
}

void PortalShortcuts::takeChanged(const QDBusMessage &message)
{
    if (!isFromSession(message, u"oa(sa{sv})"_s) || m_step != Step::Bound)
        return;
    if (const auto shortcuts = portalShortcuts(message.arguments().constLast()))
        setKeys(*shortcuts);
}

/// The portal has closed the session. The shortcuts are bound again at the next start.
void PortalShortcuts::takeClosed(const QDBusMessage &message)
{
    if (message.service() != m_owner || m_session.isEmpty() || message.path() != m_session)
        return;
    m_session.clear();
    closeSession();
}

void PortalShortcuts::setKeys(const QList<PortalShortcut> &shortcuts)
{
    QHash<QString, QString> keys;
    for (const auto &shortcut : shortcuts) {
        const QString text = textIn(shortcut.properties, u"trigger_description"_s);
        if (isOffered(shortcut.id) && !text.isEmpty() && text.size() <= LongestKeys)
            keys.insert(shortcut.id, text);
    }
    if (std::exchange(m_keys, keys) != keys)
        Q_EMIT changed();
}

std::unique_ptr<DesktopShortcuts> DesktopShortcuts::ofThisSystem(Preferences &preferences)
{
    return std::make_unique<PortalShortcuts>(QDBusConnection::sessionBus(), preferences);
}
