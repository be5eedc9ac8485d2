#pragma once

#include <QColor>
#include <QImage>
#include <QPainterPath>

/// One shadow as design tools count it: an offset downwards and a blur of which half is the Gaussian's sigma.
struct SoftShadow
{
    qreal offset = 0;
    qreal blur = 0;
    QColor color;
};

/// How far a shadow reaches beyond its shape, in the unit of the blur.
qreal shadowReach(const SoftShadow &shadow);
/// Blurs an image of format Alpha8 by three running means, which come within 3 % of the Gaussian of `sigma` pixels.
QImage blurredAlpha(const QImage &alpha, qreal sigma);
/// Draws the shadow of a shape. The painter's device must be wide enough for its reach. `scale` is the number of device
/// pixels per unit.
void paintSoftShadow(QPainter &painter, const QPainterPath &shape, const SoftShadow &shadow,
                     qreal scale);
