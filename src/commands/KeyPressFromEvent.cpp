#include "commands/KeyPress.h"

#include <QKeyEvent>
#include <qpa/qplatformintegration.h>

#include <private/qguiapplication_p.h>

namespace {

/// The text that the key types without modifiers. Only the platform knows it: it lists the shortcuts that a press can
/// match, and the first of them is the key without its modifiers. Qt's own shortcut matching uses the same list.
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

QString ownCharactersAt(quint32 scanCode)
{
    return ownCharactersOf(QKeyEvent(QEvent::KeyPress, 0, Qt::NoModifier, scanCode, 0, 0));
}

KeyPress KeyPress::from(const QKeyEvent &event)
{
    return make(Qt::Key(event.key()), event.nativeScanCode(), event.text(), event.modifiers(),
                ownCharactersOf(event));
}
