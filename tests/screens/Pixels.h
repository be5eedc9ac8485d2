#pragma once

#include <QImage>
#include <QPainter>

#include <functional>

/// Functions that measure what painters draw.
namespace Pixels {

/// A square picture of `side` logical pixels at `scale` device pixels each, painted on a transparent background.
QImage painted(qreal side, qreal scale, const std::function<void(QPainter &)> &paint);

/// The covered length along a line of device pixels, in logical pixels: the sum of the opacities.
qreal coveredInRow(const QImage &image, int y, int fromX, int toX, qreal scale);
qreal coveredInColumn(const QImage &image, int x, int fromY, int toY, qreal scale);
/// The covered area of the whole picture, in square logical pixels.
qreal coveredArea(const QImage &image, qreal scale);

} // namespace Pixels
