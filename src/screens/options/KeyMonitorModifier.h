#pragma once

#include "screens/options/KeyHandler.h"

#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// Watches the window of its parent item while that item is visible: each key press goes to the handler first, and to
/// the item with the focus only if the handler does not consume it. If several monitors watch one window, the newest is
/// asked first. Keys are handled only while the focus is inside the parent item: an item that fades out, or that is
/// covered by a menu, receives none.
class KeyMonitorModifier : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(
        KeyHandler *handler READ handler WRITE setHandler NOTIFY handlerChanged FINAL REQUIRED)

public:
    explicit KeyMonitorModifier(QQuickItem *parent = nullptr);
    ~KeyMonitorModifier() override;

    KeyHandler *handler() const { return m_handler; }
    void setHandler(KeyHandler *handler);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void handlerChanged();

protected:
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    void follow();

    QPointer<KeyHandler> m_handler;
    /// The watched window. Null while the item is not visible.
    QPointer<QQuickWindow> m_monitor;
};
