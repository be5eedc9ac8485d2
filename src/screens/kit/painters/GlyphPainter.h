#pragma once

#include <QMarginsF>

class QPainter;

/// The distance that the shadow of the program's logo extends beyond its square, on each side.
qreal appGlyphMargin(qreal size);
/// Draws the program's logo in the square from (0, 0) to (size, size), and its shadow around it. `scale` is the number
/// of device pixels per unit.
void paintAppGlyph(QPainter &painter, qreal size, qreal scale);
