#pragma once

#include "screens/theme/Metrics.h"

#include <QList>
#include <QRectF>
#include <QString>
#include <QStringList>

/// The inputs for the layout of a card.
struct CardContents
{
    bool hasType = false;
    QStringList labels;
    /// Empty without a due date.
    QString dueText;
    /// The lines of the summary.
    QStringList title;
};

/// The position of a label on the lower line of a card, in logical pixels.
struct CardLabel
{
    double x = 0;
    /// At least the width of the label's dot.
    double width = 0;

    bool operator==(const CardLabel &) const = default;
};

/// The layout of a card, in logical pixels from its upper left corner. A value computed from the contents and the width
/// of the card.
struct CardPlan
{
    static constexpr double absent = -1;
    /// The distance of all parts from the edge of the card.
    static constexpr double margin = Metrics::cardPadding;
    /// The heights of the upper line, with type, key and assignee, and of the lower line, with priority, due date and
    /// labels.
    static constexpr double headHeight = Metrics::cardHead;
    static constexpr double footHeight = Metrics::cardFoot;
    /// The top of the summary's first line, and the most lines of it.
    static constexpr double titleTop = margin + headHeight + Metrics::cardPartGap;
    static constexpr int titleLines = 3;

    double type = absent;
    double key = 0;
    QRectF assignee;
    /// The top of the lower line.
    double foot = 0;
    QRectF priority;
    double due = absent;
    double dueWidth = 0;
    /// The first two labels, shortened if they would pass the edge.
    QList<CardLabel> labels;
    double height = 0;

    bool operator==(const CardPlan &) const = default;
};

CardPlan cardPlan(const CardContents &contents, double width);
