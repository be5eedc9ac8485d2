#pragma once

#include <QColor>
#include <QImage>
#include <QPainterPath>

/// One shadow as design tools define it: a downward offset, and a blur that is twice the sigma of the Gaussian.
struct SoftShadow
{
    qreal offset = 0;
    qreal blur = 0;
    QColor color;
};

/// The distance that a shadow extends beyond its shape, in the unit of the blur.
qreal shadowReach(const SoftShadow &shadow);
/// Blurs an image of format Alpha8 with three running means, which approximate the Gaussian of `sigma` pixels within 3
/// %.
QImage blurredAlpha(const QImage &alpha, qreal sigma);
/// Draws the shadow of a shape. The device of the painter must be large enough for the shadow. `scale` is the number of
/// device pixels per unit.
void paintSoftShadow(QPainter &painter, const QPainterPath &shape, const SoftShadow &shadow,
                     qreal scale);
