#include "screens/kit/layers/LayerShield.h"

#include <QCursor>

LayerShield::LayerShield(QQuickItem *parent) : QQuickItem(parent)
{
    setAcceptedMouseButtons(Qt::AllButtons);
    setAcceptHoverEvents(true);
    // Arrow, whatever the pointer's shape is above the items below.
    setCursor(Qt::ArrowCursor);
}

void LayerShield::mouseReleaseEvent(QMouseEvent *event)
{
    event->accept();
    if (event->button() == Qt::LeftButton && contains(event->position()))
        Q_EMIT clicked();
}
