#pragma once

#include "platform/shortcuts/DesktopShortcuts.h"
#include "platform/shortcuts/linux/PortalShortcut.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QHash>

#include <functional>

/// Shortcuts by the portal for global shortcuts. They belong to a session on the portal, which ends with this object and with
/// the portal's process. Each call to the portal has a request, whose response arrives later as a signal.
class PortalShortcuts final : public DesktopShortcuts
{
    Q_OBJECT

public:
    /// The flag in the preferences that shortcuts were bound.
    static constexpr QStringView BoundKey = u"desktopShortcuts";
    /// Keys that the portal describes with more characters are not shown.
    static constexpr qsizetype LongestKeys = 100;

    /// Without a connected bus, no shortcuts are present. The preferences must outlive this object.
    PortalShortcuts(QDBusConnection bus, Preferences &preferences);
    ~PortalShortcuts() override;

    bool isPresent() const override { return m_version > 0; }
    QString keys(QStringView id) const override { return m_keys.value(id.toString()); }
    /// While another dialog is open, closes it and opens a new one.
    void choose() override;

private Q_SLOTS:
    void takeResponse(const QDBusMessage &message);
    void takeActivated(const QDBusMessage &message);
    void takeChanged(const QDBusMessage &message);
    void takeClosed(const QDBusMessage &message);

private:
    enum class Step { None, CreatesSession, Binds, Bound };
    using Reply = std::function<void(const QDBusMessage &)>;

    void follow();
    void restart(const QString &owner);
    void askVersion();
    void openSession();
    void bind(const QString &session);
    void takeBound(uint response, const QVariantMap &results);
    void closeSession();
    /// Sends a call whose response will arrive under the path of a request.
    void request(const QString &method, QVariantList arguments, QVariantMap options);
    void call(const QDBusMessage &message, Reply reply);
    bool isFromSession(const QDBusMessage &message, const QString &signature) const;
    void setKeys(const QList<PortalShortcut> &shortcuts);

    QDBusConnection m_bus;
    Preferences &m_preferences;
    QDBusServiceWatcher m_watcher;
    Step m_step = Step::None;
    /// The portal's interface has a version from 1; 0 while there is no portal.
    uint m_version = 0;
    /// Changes with every process of the portal, so that replies of an earlier one are recognised.
    int m_portals = 0;
    /// The unique name of the portal's process: others may send signals, too.
    QString m_owner;
    QString m_request;
    QString m_session;
    QHash<QString, QString> m_keys;
};
