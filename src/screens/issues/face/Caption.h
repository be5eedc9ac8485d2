#pragma once

#include <QColor>
#include <QFont>
#include <QPointF>
#include <QString>

/// A short text on a row or a card: a key, a label's name, the number of further labels, a due date.
struct Caption
{
    /// Stands for the natural width of the text.
    static constexpr double anyWidth = -1;

    /// The upper left corner of the line, in logical pixels.
    QPointF place;
    QString text;
    QFont font;
    /// The space above and below the text within its line.
    double leading = 0;
    QColor color;
    /// The width beyond which the text is elided with "…".
    double width = anyWidth;

    bool operator==(const Caption &) const = default;
};
