#pragma once

#include "model/Enums.h"

#include <QColor>

class QPainter;

/// Draws a priority in the square from (0, 0) to (size, size): an exclamation mark on orange, three bars, or three
/// dashes. `tint` colours bars and dashes; the urgent one keeps its own colours.
void paintPriorityIcon(QPainter &painter, PriorityLevel level, const QColor &tint, qreal size);
