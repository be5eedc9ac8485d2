#pragma once

#include "platform/Desktop.h"

#include <QDBusConnection>
#include <QDBusVariant>

#include <optional>

/// The desktop as Linux gives it: the appearance comes from the settings portal, asked without waiting, and until it
/// answers, or where there is none, from the toolkit's theme.
class DesktopLinux final : public Desktop
{
    Q_OBJECT

public:
    /// `bus` is where the portal lives.
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
    /// What the portal said; absent while it has said nothing or has no preference.
    std::optional<bool> m_portalDark;
    /// The portal's own setting for reduced motion, and GNOME's older switch for animations.
    bool m_portalReducedMotion = false;
    bool m_animationsOff = false;
};

/// What the toolkit's theme says while the portal is silent: the variant named in GTK_THEME ("Adwaita:dark"), else the
/// lightness of the window colour.
bool themePrefersDark();
