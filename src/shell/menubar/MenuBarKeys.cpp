#include "shell/menubar/MenuBarKeys.h"

#include "commands/KeyPress.h"
#include "screens/kit/layers/WindowLayers.h"

#include <QKeyEvent>

void MenuBarKeys::setWindow(QQuickWindow *window)
{
    if (m_window == window)
        return;
    if (m_window)
        WindowLayers::of(*m_window).setShortcuts(nullptr);
    m_window = window;
    if (m_window)
        WindowLayers::of(*m_window).setShortcuts(this);
    Q_EMIT windowChanged();
}

void MenuBarKeys::setCommands(AppCommands *commands)
{
    if (m_commands == commands)
        return;
    m_commands = commands;
    Q_EMIT commandsChanged();
}

void MenuBarKeys::observe(const QEvent &event)
{
    switch (event.type()) {
    case QEvent::KeyPress: {
        const auto &press = static_cast<const QKeyEvent &>(event);
        if (!press.isAutoRepeat())
            m_altTap.keyPressed(Qt::Key(press.key()), press.modifiers());
        return;
    }
    case QEvent::KeyRelease: {
        const auto &release = static_cast<const QKeyEvent &>(event);
        if (!release.isAutoRepeat() && m_altTap.keyReleased(Qt::Key(release.key())))
            toggle();
        return;
    }
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
    case QEvent::FocusOut:
        m_altTap.interrupt();
        return;
    default:
        return;
    }
}

bool MenuBarKeys::takes(const QKeyEvent &press)
{
    const bool isF10 = press.key() == Qt::Key_F10 && press.modifiers() == Qt::NoModifier;
    if (isF10)
        toggle();
    return isF10 || (m_commands && m_commands->runShortcut(KeyPress::from(press)));
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
    auto &layers = WindowLayers::of(*m_window);
    layers.requestCloseAll();
    if (layers.top() && layers.top()->kind() == Layer::Kind::Required)
        return;
    m_isOpen = true;
    Q_EMIT isOpenChanged();
}

void MenuBarKeys::close()
{
    if (!std::exchange(m_isOpen, false))
        return;
    Q_EMIT isOpenChanged();
}

void MenuBarKeys::choose(int command)
{
    WindowLayers::of(*m_window).requestCloseAll();
    close();
    if (m_commands)
        m_commands->run(command);
}
