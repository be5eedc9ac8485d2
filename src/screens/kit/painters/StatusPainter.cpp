#include "screens/kit/painters/StatusPainter.h"

#include "screens/theme/IdentityColors.h"

#include <QPainter>
#include <QPainterPath>

#include <numbers>

namespace {

QPen strokePen(const QColor &color, qreal width)
{
    return {color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

void paintRing(QPainter &painter, QPen pen, qreal size)
{
    const qreal inset = pen.widthF() / 2;
    pen.setCapStyle(Qt::FlatCap);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    // A path from three o'clock clockwise, so that the dashes start there.
    QPainterPath ring;
    ring.addEllipse(QRectF(inset, inset, size - 2 * inset, size - 2 * inset));
    painter.drawPath(ring);
}

void paintDashedRing(QPainter &painter, qreal size)
{
    const qreal width = statusRingWidth(size);
    QPen pen(IdentityColors::neutral(), width);
    // The dash pattern is in units of the pen width.
    pen.setDashPattern({0.13 * size / width, 0.12 * size / width});
    paintRing(painter, pen, size);
}

void paintPie(QPainter &painter, double progress, qreal size)
{
    const QColor color = progress > 0.5 ? IdentityColors::review() : IdentityColors::inProgress();
    paintRing(painter, QPen(color, statusRingWidth(size)), size);
    const qreal inset = 0.24 * size;
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawPolygon(
        pieSlice(QRectF(inset, inset, size - 2 * inset, size - 2 * inset), progress));
}

void paintDisc(QPainter &painter, const QColor &color, qreal size)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawEllipse(QRectF(0, 0, size, size));
}

void paintCheck(QPainter &painter, qreal size)
{
    const qreal from = 0.28 * size;
    const qreal side = size - 2 * from;
    const QPolygonF check{{from, from + side / 2 + 0.05 * side},
                          {from + 0.36 * side, from + side - 0.12 * side},
                          {from + side, from + 0.12 * side}};
    painter.setPen(strokePen(Qt::white, 0.12 * size));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(check);
}

void paintCross(QPainter &painter, qreal size)
{
    const qreal from = 0.32 * size;
    const qreal to = size - from;
    painter.setPen(strokePen(Qt::white, 0.12 * size));
    painter.drawLine(QPointF(from, from), QPointF(to, to));
    painter.drawLine(QPointF(to, from), QPointF(from, to));
}

} // namespace

qreal statusRingWidth(qreal size)
{
    return std::max(0.1 * size, 1.2);
}

QPolygonF pieSlice(const QRectF &box, double fraction)
{
    const QPointF centre = box.center();
    const qreal radius = std::min(box.width(), box.height()) / 2;
    const int steps = std::max(2, static_cast<int>(fraction * 72));
    QPolygonF slice{centre};
    for (int i = 0; i <= steps; ++i) {
        const double angle = -std::numbers::pi / 2 + 2 * std::numbers::pi * fraction * i / steps;
        slice.append(centre + QPointF(radius * std::cos(angle), radius * std::sin(angle)));
    }
    slice.append(centre);
    return slice;
}

void paintStatusIcon(QPainter &painter, const StatusDrawing &status, qreal size)
{
    painter.setRenderHint(QPainter::Antialiasing);
    switch (status.category) {
    case StatusCategory::Backlog:
        paintDashedRing(painter, size);
        break;
    case StatusCategory::Todo:
        paintRing(painter, QPen(IdentityColors::neutral(), statusRingWidth(size)), size);
        break;
    case StatusCategory::InProgress:
        paintPie(painter, status.progress, size);
        break;
    case StatusCategory::Done:
        paintDisc(painter, status.accent, size);
        paintCheck(painter, size);
        break;
    case StatusCategory::Cancelled:
        paintDisc(painter, IdentityColors::neutral(), size);
        paintCross(painter, size);
        break;
    }
}
