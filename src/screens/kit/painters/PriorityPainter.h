#pragma once

#include "model/Enums.h"

#include <QColor>

class QPainter;

/// Draws a priority in the square from (0, 0) to (size, size): an exclamation mark on orange, three bars, or three
/// dashes. `tint` is the colour of bars and dashes. The urgent icon keeps its own colours.
void paintPriorityIcon(QPainter &painter, PriorityLevel level, const QColor &tint, qreal size);
