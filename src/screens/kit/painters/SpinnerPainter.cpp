#include "screens/kit/painters/SpinnerPainter.h"

#include <QPainter>

void paintSpinner(QPainter &painter, const QColor &color, qreal size)
{
    constexpr int blades = 8;
    constexpr qreal grid = 16;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.scale(size / grid, size / grid);
    painter.translate(grid / 2, grid / 2);
    for (int blade = 0; blade < blades; ++blade) {
        painter.setOpacity(0.2 + 0.8 * blade / (blades - 1));
        painter.drawRoundedRect(QRectF(-0.8, -6.8, 1.6, 4.2), 0.8, 0.8);
        painter.rotate(360.0 / blades);
    }
    painter.restore();
}
