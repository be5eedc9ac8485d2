#pragma once

#include "model/DisplayProperties.h"
#include "screens/theme/Metrics.h"

#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

/// The inputs for the layout of a row.
struct RowContents
{
    DisplayProperties display;
    /// The width of the key column. Like all lengths here it is in logical pixels.
    double keyWidth = 0;
    QString summary;
    /// Empty without a parent.
    QString parentSummary;
    QStringList labels;
    /// Empty without a due date.
    QString dueText;
    /// The width of the last column, which all rows of a list share.
    double updatedWidth = Metrics::rowDate;
};

/// The layout of a row: the positions of its columns in logical pixels from its left edge, or `absent` for a column
/// that is not shown. A value computed from the contents and the width of the row.
class RowPlan
{
    Q_GADGET
    QML_VALUE_TYPE(rowPlan)
    Q_PROPERTY(double check MEMBER check CONSTANT FINAL)
    Q_PROPERTY(double priority MEMBER priority CONSTANT FINAL)
    Q_PROPERTY(double status MEMBER status CONSTANT FINAL)
    Q_PROPERTY(double assignee MEMBER assignee CONSTANT FINAL)
    Q_PROPERTY(double updated MEMBER updated CONSTANT FINAL)
    Q_PROPERTY(double updatedWidth MEMBER updatedWidth CONSTANT FINAL)

public:
    static constexpr double absent = -1;
    /// The font size of the text beside the chevron that precedes the parent's summary.
    static constexpr double parentMark = 8;
    /// The distance from the start of the parent to its summary.
    static double parentText();

    /// The check box.
    double check = absent;
    /// The priority cell.
    double priority = absent;
    double key = absent;
    double status = absent;
    /// The type.
    double type = absent;
    double summary = absent;
    double summaryWidth = 0;
    /// The parent, beside the summary if both fit.
    double parent = absent;
    double labels = absent;
    /// Shows the first two labels by name. Otherwise up to four labels are shown as dots.
    bool showsLabelNames = true;
    double due = absent;
    double dueWidth = 0;
    bool showsDueText = true;
    double assignee = absent;
    /// The date, or the latest event.
    double updated = absent;
    double updatedWidth = 0;

    bool operator==(const RowPlan &) const = default;
};

RowPlan rowPlan(const RowContents &contents, double width);
