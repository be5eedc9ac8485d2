#pragma once

#include <QColor>
#include <QString>

class QPainter;

/// Draws a person without a photograph in the square from (0, 0) to (size, size): initials on a disc.
void paintAvatar(QPainter &painter, const QColor &color, const QString &initials, qreal size);
/// Draws the icon for no person: a dashed ring with a person in it.
void paintNobody(QPainter &painter, qreal size);
