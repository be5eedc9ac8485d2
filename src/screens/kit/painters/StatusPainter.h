#pragma once

#include "model/Enums.h"

#include <QColor>
#include <QPolygonF>

class QPainter;

/// What a status icon shows.
struct StatusDrawing
{
    StatusCategory category = StatusCategory::Todo;
    /// The fill of the pie, 0 to 1; read only for work in progress.
    double progress = 0;
    /// The colour of a finished status.
    QColor accent;
};

/// The width of the ring, which never falls below 1.2.
qreal statusRingWidth(qreal size);
/// The pie of `fraction` (0 to 1) in a box, growing clockwise from twelve o'clock. Its arc is a polygon of at least two
/// steps and at most 72, and meant to be one.
QPolygonF pieSlice(const QRectF &box, double fraction);
/// Draws the icon in the square from (0, 0) to (size, size).
void paintStatusIcon(QPainter &painter, const StatusDrawing &status, qreal size);
