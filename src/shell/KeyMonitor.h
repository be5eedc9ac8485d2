#pragma once

#include "state/AppStore.h"

#include <QObject>
#include <QPointer>
#include <QQuickWindow>
#include <QtQml/qqmlregistration.h>

/// Sees every key press of one window before the item with the focus does, and offers it to the store's key map. A
/// press is passed on while the user types in a text field, while the palette or the create screen is open, and while a
/// menu or a popover has the focus. Return and the arrow keys are passed on to a focused list that moves through its
/// rows itself. Return and Space are passed on to a control that was reached by Tab.
class KeyMonitor : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickWindow *window READ window WRITE setWindow NOTIFY windowChanged FINAL)
    Q_PROPERTY(AppStore *store READ store WRITE setStore NOTIFY storeChanged FINAL REQUIRED)

public:
    using QObject::QObject;

    QQuickWindow *window() const { return m_window; }
    void setWindow(QQuickWindow *window);
    AppStore *store() const { return m_store; }
    void setStore(AppStore *store);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void windowChanged();
    void storeChanged();
    /// A key press has moved the focus to another issue, or would have if there were another one.
    void walked();

private:
    bool give(const KeyPress &press);
    bool isTyping() const;
    bool isInPopup() const;
    bool isWalkingAList(int key) const;
    bool isPressingAControl(int key) const;

    QPointer<QQuickWindow> m_window;
    QPointer<AppStore> m_store;
};
