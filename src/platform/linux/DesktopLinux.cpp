#include "platform/linux/DesktopLinux.h"

#include "platform/PastedFiles.h"

#include <QClipboard>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QMimeData>
#include <QPalette>

using namespace Qt::StringLiterals;

namespace {

const auto PortalService = u"org.freedesktop.portal.Desktop"_s;
const auto PortalPath = u"/org/freedesktop/portal/desktop"_s;
const auto PortalSettings = u"org.freedesktop.portal.Settings"_s;

const auto AppearanceGroup = u"org.freedesktop.appearance"_s;
const auto ColorSchemeKey = u"color-scheme"_s;
const auto ReducedMotionKey = u"reduced-motion"_s;
const auto GnomeGroup = u"org.gnome.desktop.interface"_s;
const auto AnimationsKey = u"enable-animations"_s;

/// The portal's value of "color-scheme" for a dark appearance; 0 means no preference.
constexpr uint PreferDark = 1;
constexpr uint PreferLight = 2;
/// The portal's value of "reduced-motion" for less motion.
constexpr uint PreferReducedMotion = 1;

/// The result of a read is wrapped in two variants, the value in a change signal in one.
QVariant unwrapped(QVariant value)
{
    while (value.canConvert<QDBusVariant>() && value.typeId() == qMetaTypeId<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

std::optional<bool> darkFromScheme(uint scheme)
{
    if (scheme == PreferDark)
        return true;
    if (scheme == PreferLight)
        return false;
    return std::nullopt;
}

} // namespace

bool themePrefersDark()
{
    const QString theme = qEnvironmentVariable("GTK_THEME");
    if (!theme.isEmpty())
        return theme.endsWith(u":dark"_s) || theme.endsWith(u"-dark"_s, Qt::CaseInsensitive);
    // A program without a graphical application has no palette.
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        return false;
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::Window).lightnessF() <
           palette.color(QPalette::WindowText).lightnessF();
}

DesktopLinux::DesktopLinux(QDBusConnection bus, QObject *parent)
    : Desktop(parent), m_bus(std::move(bus))
{
    // Qt finds the slot only if the type is registered under its name, and reports no error otherwise.
    qRegisterMetaType<QDBusVariant>();
    // The service name is left empty, because Qt would otherwise look up its owner on the bus and block until the
    // response.
    m_bus.connect({}, PortalPath, PortalSettings, u"SettingChanged"_s, this,
                  SLOT(takeSetting(QString, QString, QDBusVariant)));
    ask(AppearanceGroup, ColorSchemeKey);
    ask(AppearanceGroup, ReducedMotionKey);
    ask(GnomeGroup, AnimationsKey);
}

bool DesktopLinux::isApplicationActive() const
{
    return QGuiApplication::applicationState() == Qt::ApplicationActive;
}

bool DesktopLinux::prefersDark() const
{
    return m_portalDark ? *m_portalDark : themePrefersDark();
}

bool DesktopLinux::prefersReducedMotion() const
{
    return m_portalReducedMotion || m_animationsOff;
}

void DesktopLinux::open(const QUrl &address)
{
    QDesktopServices::openUrl(address);
}

void DesktopLinux::copyText(const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
}

QList<QUrl> DesktopLinux::pastedFiles() const
{
    return localFilesOf(QGuiApplication::clipboard()->mimeData());
}

QImage DesktopLinux::pastedImage() const
{
    return QGuiApplication::clipboard()->image();
}

void DesktopLinux::ask(const QString &group, const QString &key)
{
    auto message =
        QDBusMessage::createMethodCall(PortalService, PortalPath, PortalSettings, u"Read"_s);
    message << group << key;
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, group, key, watcher] {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        // If the portal does not know the key, or if there is no portal, the theme still decides.
        if (!reply.isError())
            takeSetting(group, key, reply.value());
        watcher->deleteLater();
    });
}

void DesktopLinux::takeSetting(const QString &group, const QString &key, const QDBusVariant &value)
{
    const bool wasDark = prefersDark();
    const bool wasReduced = prefersReducedMotion();
    const QVariant plain = unwrapped(value.variant());
    if (group == AppearanceGroup && key == ColorSchemeKey)
        m_portalDark = darkFromScheme(plain.toUInt());
    else if (group == AppearanceGroup && key == ReducedMotionKey)
        m_portalReducedMotion = plain.toUInt() == PreferReducedMotion;
    else if (group == GnomeGroup && key == AnimationsKey)
        m_animationsOff = plain.typeId() == QMetaType::Bool && !plain.toBool();
    if (wasDark != prefersDark() || wasReduced != prefersReducedMotion())
        Q_EMIT appearanceChanged();
}

std::unique_ptr<Desktop> Desktop::ofThisSystem()
{
    return std::make_unique<DesktopLinux>();
}
