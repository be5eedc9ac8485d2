#pragma once

#include <QList>
#include <QRectF>
#include <QString>
#include <QStringList>

/// What decides where the parts of a card stand.
struct CardContents
{
    bool hasType = false;
    QStringList labels;
    /// Empty without a due date.
    QString dueText;
    /// Of the summary's lines, in logical pixels.
    double titleHeight = 0;
};

/// Where a label stands on the lower line of a card, in logical pixels.
struct CardLabel
{
    double x = 0;
    /// No less than its dot needs.
    double width = 0;

    bool operator==(const CardLabel &) const = default;
};

/// Where the parts of a card stand, in logical pixels from its upper left corner. A value computed from what the card
/// shows and from its width.
struct CardPlan
{
    static constexpr double absent = -1;
    /// Round all parts.
    static constexpr double margin = 12;
    /// Of the upper line, with type, key and assignee; of the lower one, with priority, due date and labels.
    static constexpr double headHeight = 18;
    static constexpr double footHeight = 20;
    /// Of the summary's first line.
    static constexpr double titleTop = margin + headHeight + 8;

    double type = absent;
    double key = 0;
    QRectF assignee;
    /// Of the lower line.
    double foot = 0;
    QRectF priority;
    double due = absent;
    double dueWidth = 0;
    /// The first two, which give way to the edge.
    QList<CardLabel> labels;
    double height = 0;

    bool operator==(const CardPlan &) const = default;
};

CardPlan cardPlan(const CardContents &contents, double width);
