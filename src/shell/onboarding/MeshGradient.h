#pragma once

#include <QImage>
#include <QPointF>

#include <array>

/// A field of nine colours, three by three over the unit square, whose middle point slowly drifts.
namespace MeshGradient {

/// The control points, row by row from the top, `time` in seconds.
std::array<QPointF, 9> points(double time);
/// The colour at a point of the unit square, interpolated smoothly between the control points.
QRgb colorAt(const QPointF &place, double time);
/// The field as an opaque image of `size` pixels. The field is so smooth that a small image can be stretched.
QImage image(const QSize &size, double time);

} // namespace MeshGradient
