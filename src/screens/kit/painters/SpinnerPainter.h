#pragma once

#include <QColor>

class QPainter;

/// Draws the eight blades of a spinner in the square from (0, 0) to (size, size). The brightest blade is just before
/// twelve o'clock.
void paintSpinner(QPainter &painter, const QColor &color, qreal size);
