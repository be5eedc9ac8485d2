#pragma once

#include <QColor>
#include <QString>

class QPainter;

/// The letter of a project's badge: the first character of the name in upper case; empty for an empty name.
QString badgeLetter(const QString &projectName);
/// Draws a project's badge in the square from (0, 0) to (size, size): the letter above the soft gradient of a colour.
void paintProjectBadge(QPainter &painter, const QColor &color, const QString &letter, qreal size);
