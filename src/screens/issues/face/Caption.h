#pragma once

#include <QColor>
#include <QFont>
#include <QPointF>
#include <QString>

/// One line of text on a row or a card: a key, a title, a label's name, the number of further labels, a date.
struct Caption
{
    /// Stands for the natural width of the text.
    static constexpr double anyWidth = -1;

    /// The upper left corner of the line, in logical pixels.
    QPointF place;
    QString text;
    QFont font;
    /// The height of the line, and the space above and below the text within it.
    double height = 0;
    double leading = 0;
    QColor color;
    /// The width beyond which the text is elided with "…".
    double width = anyWidth;

    bool operator==(const Caption &) const = default;
};
