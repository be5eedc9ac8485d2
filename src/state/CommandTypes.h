#pragma once

#include "commands/Command.h"
#include "commands/ShortcutReference.h"

#include <QtQml/qqml.h>

/// The QML names of commands and of the types in the list of shortcuts.
namespace CommandTypes {

struct ShortcutMeaningValue
{
    Q_GADGET
    QML_FOREIGN(ShortcutMeaning)
    QML_VALUE_TYPE(shortcutMeaning)
};

struct ShortcutGroupValue
{
    Q_GADGET
    QML_FOREIGN(ShortcutGroup)
    QML_VALUE_TYPE(shortcutGroup)
};

} // namespace CommandTypes

namespace CommandEnums {
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(Commands)
QML_NAMED_ELEMENT(Commands)
} // namespace CommandEnums
