#pragma once

#include "screens/theme/Metrics.h"

#include <QColor>
#include <QPointF>
#include <QSizeF>

class QPainter;

/// The layout of chips, in logical pixels.
namespace ChipLayout {

/// Where the name of a label and the text of a due date begin.
inline constexpr int labelText = Metrics::chipPadding + Metrics::labelDot + Metrics::labelTextGap;
inline constexpr int dueText = Metrics::chipPadding + Metrics::dueSymbol + Metrics::chipGap;
/// What a chip is wider than its text.
inline constexpr int labelFrame = labelText + Metrics::chipPadding;
inline constexpr int dueFrame = dueText + Metrics::chipPadding;

} // namespace ChipLayout

/// Draws the dot of a label with its upper left corner at a position.
void paintLabelDot(QPainter &painter, QPointF corner, const QColor &color);
/// Draws the chip of a label without its name: the outline of a capsule from (0, 0), and the dot.
void paintLabelChip(QPainter &painter, QSizeF size, const QColor &outline, const QColor &dot);
/// Draws a due date without its text: the outline of a capsule from (0, 0), and the calendar.
void paintDueBadge(QPainter &painter, QSizeF size, const QColor &outline, const QColor &ink);
