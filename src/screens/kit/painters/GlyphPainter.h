#pragma once

#include <QMarginsF>

class QPainter;

/// How far the shadow of the program's mark reaches beyond its square, on each side.
qreal appGlyphMargin(qreal size);
/// Draws the program's mark in the square from (0, 0) to (size, size), and its shadow round it. `scale` is the number
/// of device pixels per unit.
void paintAppGlyph(QPainter &painter, qreal size, qreal scale);
