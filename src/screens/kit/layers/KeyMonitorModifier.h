#pragma once

#include "screens/kit/layers/KeyHandler.h"

#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

class WindowLayers;

/// Gives a handler the key presses of the layer that contains this item, while the layer is on top and this item is
/// visible. The handler is asked before the item with the focus. The focus must be inside the parent of this item, unless
/// that parent is the layer's item or the layer leaves the focus where it is. If several monitors receive a key, the
/// newest is asked first.
class KeyMonitorModifier : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(KeyHandler *handler MEMBER m_handler NOTIFY handlerChanged FINAL REQUIRED)

public:
    explicit KeyMonitorModifier(QQuickItem *parent = nullptr);
    ~KeyMonitorModifier() override;

    KeyHandler *handler() const { return m_handler; }

Q_SIGNALS:
    void handlerChanged();

protected:
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    void follow();

    QPointer<KeyHandler> m_handler;
    /// The layers of the watched window. Null while the item is not visible.
    QPointer<WindowLayers> m_monitor;
};
