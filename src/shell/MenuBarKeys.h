#pragma once

#include "shell/AltTap.h"
#include "state/AppCommands.h"

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtQml/qqmlregistration.h>

/// The keys of a window's menus: it carries out their shortcuts, shows the menu bar at a tap of Alt and at F10, in the
/// place of whatever is open over the window's content, and hides it in the same way. While the bar is shown it has the
/// keyboard; what is chosen there is carried out when the bar is gone and the focus is back where it was, so that commands
/// find the window as the user left it.
class MenuBarKeys : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickWindow *window READ window WRITE setWindow NOTIFY windowChanged FINAL REQUIRED)
    Q_PROPERTY(
        AppCommands *commands READ commands WRITE setCommands NOTIFY commandsChanged FINAL REQUIRED)
    /// One of the bar's menus is open; when none is any more, the bar closes.
    Q_PROPERTY(
        bool hasOpenMenu READ hasOpenMenu WRITE setHasOpenMenu NOTIFY hasOpenMenuChanged FINAL)
    /// Holds the bar. A focus that has moved on to anything else is left there when the bar closes.
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
    /// Closes the bar and then carries out a `Commands.AppCommand`.
    Q_INVOKABLE void choose(int command);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void windowChanged();
    void commandsChanged();
    void isOpenChanged();
    void hasOpenMenuChanged();
    void layerChanged();
    /// What is open above the window's content, and is no popover or menu, is to be closed.
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
