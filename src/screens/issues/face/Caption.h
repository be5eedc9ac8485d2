#pragma once

#include <QColor>
#include <QFont>
#include <QPointF>
#include <QString>

/// A short text on a row or a card: a key, a label's name, the number of further labels, a due date.
struct Caption
{
    /// The natural one of the text.
    static constexpr double anyWidth = -1;

    /// Of its line's upper left corner, in logical pixels.
    QPointF place;
    QString text;
    QFont font;
    /// What its line leaves free above and below it.
    double leading = 0;
    QColor color;
    /// Where it ends in "…".
    double width = anyWidth;

    bool operator==(const Caption &) const = default;
};
