#include "shell/menubar/MenuBarKeys.h"

#include "commands/KeyPress.h"
#include "screens/kit/overlays/OpenPopups.h"

#include <QKeyEvent>

void MenuBarKeys::setWindow(QQuickWindow *window)
{
    if (m_window == window)
        return;
    if (m_window)
        m_window->removeEventFilter(this);
    m_window = window;
    if (m_window)
        m_window->installEventFilter(this);
    Q_EMIT windowChanged();
}

void MenuBarKeys::setCommands(AppCommands *commands)
{
    if (m_commands == commands)
        return;
    m_commands = commands;
    Q_EMIT commandsChanged();
}

bool MenuBarKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_window)
        return false;
    switch (event->type()) {
    case QEvent::KeyPress:
        return takesPress(static_cast<const QKeyEvent &>(*event));
    case QEvent::KeyRelease: {
        const auto &release = static_cast<const QKeyEvent &>(*event);
        if (!release.isAutoRepeat() && m_altTap.keyReleased(Qt::Key(release.key())))
            toggle();
        return false;
    }
    case QEvent::MouseButtonPress:
    case QEvent::FocusOut:
        m_altTap.interrupt();
        return false;
    default:
        return false;
    }
}

bool MenuBarKeys::takesPress(const QKeyEvent &event)
{
    if (!event.isAutoRepeat())
        m_altTap.keyPressed(Qt::Key(event.key()), event.modifiers());
    const bool isF10 = event.key() == Qt::Key_F10 && event.modifiers() == Qt::NoModifier;
    if (isF10)
        toggle();
    return isF10 || (m_commands && m_commands->runShortcut(KeyPress::from(event)));
}

void MenuBarKeys::setHasOpenMenu(bool open)
{
    if (std::exchange(m_hasOpenMenu, open) == open)
        return;
    Q_EMIT hasOpenMenuChanged();
    // Moving from one menu to the next closes the first menu before it opens the second.
    if (!open)
        QMetaObject::invokeMethod(this, &MenuBarKeys::closeWithItsMenus, Qt::QueuedConnection);
}

void MenuBarKeys::closeWithItsMenus()
{
    if (!m_hasOpenMenu)
        close();
}

void MenuBarKeys::toggle()
{
    if (m_isOpen)
        close();
    else
        open();
}

void MenuBarKeys::open()
{
    Q_EMIT aboutToOpen();
    OpenPopups::close(*m_window);
    m_before = m_window->activeFocusItem();
    m_isOpen = true;
    Q_EMIT isOpenChanged();
}

bool MenuBarKeys::hasMovedOn(const QQuickItem *focus) const
{
    if (!focus || focus->isAncestorOf(m_before))
        return false;
    // The menus are popups. While the bar is shown there are no other popups.
    while (focus && focus != m_layer && !focus->inherits("QQuickPopupItem"))
        focus = focus->parentItem();
    return focus == nullptr;
}

void MenuBarKeys::close()
{
    if (!m_isOpen)
        return;
    m_isOpen = false;
    Q_EMIT isOpenChanged();
    if (m_before && !hasMovedOn(m_window->activeFocusItem()))
        m_before->forceActiveFocus(Qt::MenuBarFocusReason);
    m_before = nullptr;
}

void MenuBarKeys::choose(int command)
{
    close();
    if (m_commands)
        m_commands->run(command);
}
