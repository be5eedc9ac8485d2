#pragma once

#include "screens/options/KeyHandler.h"

#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// Watches the window of the item it is placed in while it is seen: each key press goes to the handler first, and to the
/// item with the focus only if the handler leaves it. Of several monitors in a window the one that came last is asked
/// first. Keys count only while the focus is in the item: one that fades out, or lies under a menu, takes none.
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
    /// The window watched; null while the item is not seen.
    QPointer<QQuickWindow> m_monitor;
};
