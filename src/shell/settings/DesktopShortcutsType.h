#pragma once

#include "platform/shortcuts/DesktopShortcuts.h"

#include <QtQml/qqml.h>

/// Declares `DesktopShortcuts` to QML.
struct DesktopShortcutsType
{
    Q_GADGET
    QML_FOREIGN(DesktopShortcuts)
    QML_NAMED_ELEMENT(DesktopShortcuts)
    QML_UNCREATABLE("Made with the program")
};
