#include "shell/KeyMonitor.h"

#include "commands/KeyPress.h"
#include "commands/KeyRouting.h"
#include "screens/kit/layers/OwnKeys.h"
#include "screens/kit/layers/WindowLayers.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QQuickItem>

namespace {

bool isActivation(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

/// A control that shows the keyboard focus is pressed by Return and Space.
bool isPressed(const QQuickItem &control, int key)
{
    return (isActivation(key) || key == Qt::Key_Space) && control.property("visualFocus").toBool();
}

/// The item says that it uses the press, as text fields do for shortcuts.
bool isWanted(QQuickItem &item, const QKeyEvent &event)
{
    QKeyEvent question(QEvent::ShortcutOverride, event.key(), event.modifiers(),
                       event.nativeScanCode(), event.nativeVirtualKey(), event.nativeModifiers(),
                       event.text());
    question.ignore();
    QCoreApplication::sendEvent(&item, &question);
    return question.isAccepted();
}

bool isScrolling(int key)
{
    return key == Qt::Key_PageUp || key == Qt::Key_PageDown || key == Qt::Key_Home ||
           key == Qt::Key_End;
}

} // namespace

bool KeyMonitor::takes(const QKeyEvent &event)
{
    if (!m_store || !m_window)
        return false;
    return !isLeftToFocusItem(event) && give(KeyPress::from(event));
}

bool KeyMonitor::repeats(const QKeyEvent &event) const
{
    const auto command = route(KeyPress::from(event));
    return !m_commands && command && isMovement(*command);
}

bool KeyMonitor::give(const KeyPress &press)
{
    if (m_commands)
        return m_commands->runKey(press);
    const auto command = route(press);
    const auto before = m_store->focusedKey();
    const bool isTaken = m_store->handleKey(press);
    if ((command && isMovement(*command)) || m_store->focusedKey() != before)
        Q_EMIT walked();
    return isTaken;
}

bool KeyMonitor::isLeftToFocusItem(const QKeyEvent &event) const
{
    if (WindowLayers::of(*m_window).isTyping())
        return true;
    auto *item = m_window->activeFocusItem();
    if (!item)
        return false;
    if (isWanted(*item, event))
        return true;
    const int key = event.key();
    const bool isWalking = isActivation(key) || key == Qt::Key_Up || key == Qt::Key_Down;
    return isPressed(*item, key) || (isWalking && OwnKeys::isInWalkedList(*item)) ||
           (isScrolling(key) && OwnKeys::isInScrolledPage(*item));
}
