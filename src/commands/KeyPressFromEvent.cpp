#include "commands/KeyPress.h"

#include <QKeyEvent>
#include <qpa/qplatformintegration.h>

#include <private/qguiapplication_p.h>

namespace {

/// What the key types alone. Only the platform knows: it lists the shortcuts that a press can stand for, and the first
/// of them is the key without its modifiers. Qt's own matching of shortcuts asks in the same way.
QString ownCharactersOf(const QKeyEvent &event)
{
    const QPlatformIntegration *platform = QGuiApplicationPrivate::platformIntegration();
    const QList<int> shortcuts = platform ? platform->possibleKeys(&event) : QList<int>();
    if (shortcuts.isEmpty())
        return {};
    const auto key = Qt::Key(shortcuts.front() & ~int(Qt::KeyboardModifierMask));
    return KeyPress::make(key, event.nativeScanCode(), {}, Qt::NoModifier).characters;
}

} // namespace

KeyPress KeyPress::from(const QKeyEvent &event)
{
    return make(Qt::Key(event.key()), event.nativeScanCode(), event.text(), event.modifiers(),
                ownCharactersOf(event));
}
