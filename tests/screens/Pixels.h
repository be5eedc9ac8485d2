#pragma once

#include <QImage>
#include <QPainter>

#include <functional>

/// Measuring of what painters draw.
namespace Pixels {

/// A square picture of `side` logical pixels at `scale` device pixels each, painted on nothing.
QImage painted(qreal side, qreal scale, const std::function<void(QPainter &)> &paint);

/// How much is covered along a line of device pixels, in logical pixels: the sum of the opacities.
qreal coveredInRow(const QImage &image, int y, int fromX, int toX, qreal scale);
qreal coveredInColumn(const QImage &image, int x, int fromY, int toY, qreal scale);
/// How much is covered of the whole picture, in square logical pixels.
qreal coveredArea(const QImage &image, qreal scale);

} // namespace Pixels
