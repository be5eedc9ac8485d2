#include "screens/kit/drawn/PaneGlow.h"

#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

namespace {

/// The fraction of the ellipse at which a light has faded completely.
constexpr qreal end = 0.7;

/// Draws an ellipse of light around a corner of the box. Its semi-axes are fractions of the box's sides.
void light(QPainter &painter, const QRectF &box, const QPointF &corner, const QSizeF &shares,
           const QColor &color)
{
    QColor nothing = color;
    nothing.setAlpha(0);
    QRadialGradient gradient(QPointF(), 1);
    gradient.setColorAt(0, color);
    gradient.setColorAt(end, nothing);
    painter.save();
    painter.translate(corner);
    painter.scale(box.width() * shares.width(), box.height() * shares.height());
    painter.fillRect(QRectF(-1, -1, 2, 2), gradient);
    painter.restore();
}

} // namespace

PaneGlow::PaneGlow(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
}

void PaneGlow::setColor(const QColor &color)
{
    if (m_color == color)
        return;
    m_color = color;
    Q_EMIT colorChanged();
    update();
}

void PaneGlow::setRadius(qreal radius)
{
    if (m_radius == radius)
        return;
    m_radius = radius;
    Q_EMIT radiusChanged();
    update();
}

void PaneGlow::paint(QPainter *painter)
{
    const QRectF box = boundingRect();
    QPainterPath shape;
    shape.addRoundedRect(box, m_radius, m_radius);
    painter->setClipPath(shape);
    light(*painter, box, box.topLeft(), {1.4, 0.42}, m_color);
    light(*painter, box, box.bottomRight(), {1.2, 0.4}, m_color);
}
