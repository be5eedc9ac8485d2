#pragma once

#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// The back of a layer: it covers what is below and accepts every press, touch, hover and wheel event, so that nothing
/// below the layer reacts to the pointer while the layer is open.
class LayerShield : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit LayerShield(QQuickItem *parent = nullptr);

Q_SIGNALS:
    /// The left button was pressed and released, or a finger has tapped, beside the layer.
    void clicked();

protected:
    void mousePressEvent(QMouseEvent *event) override { event->accept(); }
    void mouseMoveEvent(QMouseEvent *event) override { event->accept(); }
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override { event->accept(); }
    void wheelEvent(QWheelEvent *event) override { event->accept(); }
    void hoverEnterEvent(QHoverEvent *event) override { event->accept(); }
    void hoverMoveEvent(QHoverEvent *event) override { event->accept(); }
    void hoverLeaveEvent(QHoverEvent *event) override { event->accept(); }
};
