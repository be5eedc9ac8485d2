#include "screens/issues/board/DashedBox.h"

#include <QPainter>

DashedBox::DashedBox(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    connect(this, &DashedBox::changed, this, [this] { update(); });
}

void DashedBox::paint(QPainter *painter)
{
    QPen pen(m_color, 1);
    pen.setDashPattern({5, 4});
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(pen);
    painter->drawRoundedRect(boundingRect().adjusted(0.5, 0.5, -0.5, -0.5), m_radius, m_radius);
}
