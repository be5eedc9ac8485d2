#pragma once

#include "screens/kit/layers/KeyHandler.h"
#include "state/AppCommands.h"
#include "state/AppStore.h"

#include <QPointer>
#include <QQuickWindow>

/// Offers the key presses of a window's content to the key map. A press is passed on while the user
/// types in a text field. Return and the arrow keys are passed on to a focused list that moves through its rows itself,
/// Page Up, Page Down, Home and End to a page that scrolls, Return and Space to a control that was reached by Tab, and
/// any press to an item that accepts its `ShortcutOverride` event.
class KeyMonitor : public KeyHandler
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickWindow *window MEMBER m_window NOTIFY windowChanged FINAL)
    Q_PROPERTY(AppStore *store MEMBER m_store NOTIFY storeChanged FINAL REQUIRED)
    /// In the window of an issue: the commands of that window. The other keys of the key map have no effect there.
    Q_PROPERTY(AppCommands *commands MEMBER m_commands NOTIFY commandsChanged FINAL)

public:
    using KeyHandler::KeyHandler;

    bool takes(const QKeyEvent &press) override;
    /// Holding a key down moves the focus on through the issues. It repeats nothing else.
    bool repeats(const QKeyEvent &press) const override;

Q_SIGNALS:
    void windowChanged();
    void storeChanged();
    void commandsChanged();
    /// A key press has moved the focus to another issue, or would have if there were another one.
    void walked();

private:
    bool isLeftToFocusItem(const QKeyEvent &event) const;
    bool give(const KeyPress &press);

    QPointer<QQuickWindow> m_window;
    QPointer<AppStore> m_store;
    QPointer<AppCommands> m_commands;
};
