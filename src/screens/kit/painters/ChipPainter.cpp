#include "screens/kit/painters/ChipPainter.h"

#include "screens/kit/painters/SymbolPainter.h"

#include <QPainter>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

void strokeCapsule(QPainter &painter, QSizeF size, const QColor &color)
{
    const QRectF box(QPointF(), size);
    const qreal radius = (size.height() - 1) / 2;
    painter.setPen(QPen(color, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(box.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

} // namespace

void paintLabelDot(QPainter &painter, QPointF corner, const QColor &color)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawEllipse(QRectF(corner, QSizeF(Metrics::labelDot, Metrics::labelDot)));
}

void paintLabelChip(QPainter &painter, QSizeF size, const QColor &outline, const QColor &dot)
{
    strokeCapsule(painter, size, outline);
    paintLabelDot(painter, {Metrics::chipPadding, (size.height() - Metrics::labelDot) / 2}, dot);
}

void paintDueBadge(QPainter &painter, QSizeF size, const QColor &outline, const QColor &ink)
{
    strokeCapsule(painter, size, outline);
    // Rounded to a whole pixel, so that the lines of the symbol stay sharp.
    const qreal top = std::ceil((size.height() - Metrics::dueSymbol) / 2);
    paintSymbol(painter, {u"calendar"_s, ink},
                QRectF(Metrics::chipPadding, top, Metrics::dueSymbol, Metrics::dueSymbol));
}
