#pragma once

#include "shell/menubar/AltTap.h"
#include "state/AppCommands.h"

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtQml/qqmlregistration.h>

/// Handles the keys of a window's menus: it carries out their shortcuts, and shows and hides the menu bar at a tap of
/// Alt and at F10. Showing the bar closes any popup above the window's content. While the bar is shown it has the
/// keyboard focus. A chosen command is carried out after the bar is closed and the focus is restored, so that the
/// command sees the window in the state in which the user left it.
class MenuBarKeys : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickWindow *window READ window WRITE setWindow NOTIFY windowChanged FINAL REQUIRED)
    Q_PROPERTY(
        AppCommands *commands READ commands WRITE setCommands NOTIFY commandsChanged FINAL REQUIRED)
    /// One of the bar's menus is open. The bar closes when no menu is open any more.
    Q_PROPERTY(
        bool hasOpenMenu READ hasOpenMenu WRITE setHasOpenMenu NOTIFY hasOpenMenuChanged FINAL)
    /// The item that contains the bar. If the focus has moved to any other item, it stays there when the bar closes.
    Q_PROPERTY(QQuickItem *layer MEMBER m_layer NOTIFY layerChanged FINAL REQUIRED)
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY isOpenChanged FINAL)

public:
    using QObject::QObject;

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

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void windowChanged();
    void commandsChanged();
    void isOpenChanged();
    void hasOpenMenuChanged();
    void layerChanged();
    /// Requests that everything that is open above the window's content, and is no popup, be closed.
    void aboutToOpen();

private:
    bool takesPress(const QKeyEvent &event);
    void toggle();
    void open();
    void closeWithItsMenus();
    bool hasMovedOn(const QQuickItem *focus) const;

    QPointer<QQuickWindow> m_window;
    QPointer<QQuickItem> m_layer;
    QPointer<AppCommands> m_commands;
    AltTap m_altTap;
    bool m_isOpen = false;
    bool m_hasOpenMenu = false;
    QPointer<QQuickItem> m_before;
};
