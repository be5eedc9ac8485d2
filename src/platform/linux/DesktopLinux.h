#pragma once

#include "platform/Desktop.h"

#include <QDBusConnection>
#include <QDBusVariant>

#include <optional>

/// The implementation for Linux. The appearance is read from the settings portal without blocking. Until the portal
/// responds, or if there is none, it is taken from the theme of the toolkit.
class DesktopLinux final : public Desktop
{
    Q_OBJECT

public:
    /// `bus` is the bus on which the portal is registered.
    explicit DesktopLinux(QDBusConnection bus = QDBusConnection::sessionBus(),
                          QObject *parent = nullptr);

    bool isApplicationActive() const override;
    bool prefersDark() const override;
    bool prefersReducedMotion() const override;
    void open(const QUrl &address) override;
    void copyText(const QString &text) override;
    QList<QUrl> pastedFiles() const override;
    QImage pastedImage() const override;

private:
    Q_SLOT void takeSetting(const QString &group, const QString &key, const QDBusVariant &value);

    void ask(const QString &group, const QString &key);

    QDBusConnection m_bus;
    /// The preference reported by the portal; absent before its first response or if it has no preference.
    std::optional<bool> m_portalDark;
    /// The portal's own setting for reduced motion, and the older GNOME setting that turns animations off.
    bool m_portalReducedMotion = false;
    bool m_animationsOff = false;
};

/// The appearance according to the theme of the toolkit, used without a value from the portal: the variant named in
/// GTK_THEME ("Adwaita:dark"), otherwise the lightness of the window colour.
bool themePrefersDark();
