#pragma once

#include "screens/issues/face/HotSpot.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Which forms of a row's cells fit: when space ends, the parent gives way first, then the labels' names, then the due
/// date's text, all before the summary is cut below `summaryMinimum`. A value computed from measured widths.
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

/// Measures for `RowFit`, as QML can call them.
class RowFitting : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// The summary's cell is never narrower, in logical pixels.
    static constexpr double summaryMinimum = 170;

    /// `room` is what the row leaves to summary, labels and due date together; the four widths include the gap before
    /// their cell and are 0 for a cell that is not shown.
    Q_INVOKABLE static RowFit fit(double room, double labelNames, double labelDots, double dueText,
                                  double dueIcon);
    /// How wide the chips of the first two labels and the number of the others are; 0 without labels.
    Q_INVOKABLE static double labelsWidth(const QStringList &labels);
    /// How wide the badge of a due date with this text is.
    Q_INVOKABLE static double dueWidth(const QString &text);
    /// What is under no pointer.
    Q_INVOKABLE static HotSpot noSpot() { return {}; }
};
