#include "platform/shortcuts/linux/PortalShortcut.h"

using namespace Qt::StringLiterals;

QDBusArgument &operator<<(QDBusArgument &argument, const PortalShortcut &shortcut)
{
    argument.beginStructure();
    argument << shortcut.id << shortcut.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, PortalShortcut &shortcut)
{
    argument.beginStructure();
    const auto &rest = argument >> shortcut.id >> shortcut.properties;
    rest.endStructure();
    return rest;
}

std::optional<QList<PortalShortcut>> portalShortcuts(const QVariant &value)
{
    if (value.typeId() != qMetaTypeId<QDBusArgument>())
        return std::nullopt;
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != u"a(sa{sv})"_s)
        return std::nullopt;
    return qdbus_cast<QList<PortalShortcut>>(argument);
}
