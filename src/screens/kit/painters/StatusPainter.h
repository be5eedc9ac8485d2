#pragma once

#include "model/Enums.h"

#include <QColor>
#include <QPolygonF>

class QPainter;

/// The inputs of a status icon.
struct StatusDrawing
{
    StatusCategory category = StatusCategory::Todo;
    /// The filled fraction of the pie, 0 to 1. Used only for work in progress.
    double progress = 0;
    /// The colour of a finished status.
    QColor accent;
};

/// The width of the ring, at least 1.2.
qreal statusRingWidth(qreal size);
/// The pie of `fraction` (0 to 1) in a box, growing clockwise from twelve o'clock. Its arc is deliberately a polygon of
/// 2 to 72 steps.
QPolygonF pieSlice(const QRectF &box, double fraction);
/// Draws the icon in the square from (0, 0) to (size, size).
void paintStatusIcon(QPainter &painter, const StatusDrawing &status, qreal size);
