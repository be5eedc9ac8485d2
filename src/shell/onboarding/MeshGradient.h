#pragma once

#include <QImage>
#include <QPointF>

#include <array>

/// A field of nine colours, three by three over the unit square, whose middle slowly drifts.
namespace MeshGradient {

/// The control points, row by row from the top, `time` in seconds.
std::array<QPointF, 9> points(double time);
/// The colour at a place of the unit square, smooth between the control points.
QRgb colorAt(const QPointF &place, double time);
/// The field in that many pixels, opaque. It is so smooth that few are enough, stretched.
QImage image(const QSize &size, double time);

} // namespace MeshGradient
