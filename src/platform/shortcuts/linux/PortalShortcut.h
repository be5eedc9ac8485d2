#pragma once

#include <QDBusArgument>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QVariantMap>

#include <optional>

/// A shortcut as the portal for global shortcuts takes and returns it: a structure of type (sa{sv}).
struct PortalShortcut
{
    QString id;
    /// What the program tells: "description". What the portal tells: "trigger_description".
    QVariantMap properties;

    bool operator==(const PortalShortcut &) const = default;
};
Q_DECLARE_METATYPE(PortalShortcut)

QDBusArgument &operator<<(QDBusArgument &argument, const PortalShortcut &shortcut);
const QDBusArgument &operator>>(const QDBusArgument &argument, PortalShortcut &shortcut);

/// The shortcuts in a value that arrived over D-Bus; nothing if it has another type.
std::optional<QList<PortalShortcut>> portalShortcuts(const QVariant &value);
