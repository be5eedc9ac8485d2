#pragma once

#include "screens/issues/face/HotSpot.h"
#include "screens/theme/Metrics.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// The forms in which a row's cells fit. As the row becomes narrower, the parent is hidden first, then the names of the
/// labels, then the text of the due date. Only then does the summary become narrower than `summaryMinimum`. A value
/// computed from measured widths.
class RowFit
{
    Q_GADGET
    QML_VALUE_TYPE(rowFit)
    Q_PROPERTY(bool showsLabelNames MEMBER showsLabelNames CONSTANT FINAL)
    Q_PROPERTY(bool showsDueText MEMBER showsDueText CONSTANT FINAL)

public:
    bool showsLabelNames = true;
    bool showsDueText = true;

    bool operator==(const RowFit &) const = default;
};

/// The measurements for `RowFit`, callable from QML.
class RowFitting : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// The minimum width of the summary's cell, in logical pixels.
    static constexpr double summaryMinimum = Metrics::rowSummaryMinimum;
    /// How many labels are shown by name, and how many as dots if their names do not fit.
    static constexpr qsizetype labelsShown = 2;
    static constexpr qsizetype dotsShown = 4;

    /// `room` is the width that the row leaves to summary, labels and due date together. The four widths include the
    /// gap before their cell and are 0 for a cell that is not shown.
    Q_INVOKABLE static RowFit fit(double room, double labelNames, double labelDots, double dueText,
                                  double dueIcon);
    /// The width of the chips of the first two labels and of the number of further labels. 0 without labels.
    Q_INVOKABLE static double labelsWidth(const QStringList &labels);
    /// The width of the dots that stand for at most the first four labels. 0 without labels.
    static double dotsWidth(const QStringList &labels);
    /// The width of the badge of a due date with this text.
    Q_INVOKABLE static double dueWidth(const QString &text);
    /// An empty hot spot.
    Q_INVOKABLE static HotSpot noSpot() { return {}; }
};
