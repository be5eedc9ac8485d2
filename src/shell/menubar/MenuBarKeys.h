#pragma once

#include "screens/kit/layers/KeyHandler.h"
#include "shell/menubar/AltTap.h"
#include "state/AppCommands.h"

#include <QPointer>
#include <QQuickWindow>

/// Handles the shortcuts of a window: it carries out those of its menus, and shows and hides the menu bar at a tap of Alt
/// and at F10. Showing the bar closes the layers above the window's content, unless the user must complete one first. A
/// chosen command is carried out after the bar is closed and the focus is restored, so that the command sees the window
/// in the state in which the user left it.
class MenuBarKeys : public KeyHandler
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickWindow *window READ window WRITE setWindow NOTIFY windowChanged FINAL REQUIRED)
    Q_PROPERTY(
        AppCommands *commands READ commands WRITE setCommands NOTIFY commandsChanged FINAL REQUIRED)
    /// One of the bar's menus is open. The bar closes when no menu is open any more.
    Q_PROPERTY(
        bool hasOpenMenu READ hasOpenMenu WRITE setHasOpenMenu NOTIFY hasOpenMenuChanged FINAL)
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY isOpenChanged FINAL)

public:
    using KeyHandler::KeyHandler;

    QQuickWindow *window() const { return m_window; }
    void setWindow(QQuickWindow *window);
    AppCommands *commands() const { return m_commands; }
    void setCommands(AppCommands *commands);
    bool isOpen() const { return m_isOpen; }
    bool hasOpenMenu() const { return m_hasOpenMenu; }
    void setHasOpenMenu(bool open);

    Q_INVOKABLE void close();
    /// Closes the bar and then carries out a `Commands.Command`.
    Q_INVOKABLE void choose(int command);

    bool takes(const QKeyEvent &press) override;
    void observe(const QEvent &event) override;

Q_SIGNALS:
    void windowChanged();
    void commandsChanged();
    void isOpenChanged();
    void hasOpenMenuChanged();

private:
    void toggle();
    void open();
    void closeWithItsMenus();

    QPointer<QQuickWindow> m_window;
    QPointer<AppCommands> m_commands;
    AltTap m_altTap;
    bool m_isOpen = false;
    bool m_hasOpenMenu = false;
};
