#pragma once

#include "model/DisplayProperties.h"

#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

/// What decides where the columns of a row stand.
struct RowContents
{
    DisplayProperties display;
    /// Of the key's column, in logical pixels, as all others.
    double keyWidth = 0;
    QStringList labels;
    /// Empty without a due date.
    QString dueText;
    /// The row ends with the latest event of a recap in place of the date.
    bool hasActivity = false;
};

/// Where the columns of a row stand, in logical pixels from its left edge; `absent` for one that is not shown. A value
/// computed from what the row shows and from its width.
class RowPlan
{
    Q_GADGET
    QML_VALUE_TYPE(rowPlan)
    Q_PROPERTY(double check MEMBER check CONSTANT FINAL)
    Q_PROPERTY(double priority MEMBER priority CONSTANT FINAL)
    Q_PROPERTY(double key MEMBER key CONSTANT FINAL)
    Q_PROPERTY(double status MEMBER status CONSTANT FINAL)
    Q_PROPERTY(double summary MEMBER summary CONSTANT FINAL)
    Q_PROPERTY(double summaryWidth MEMBER summaryWidth CONSTANT FINAL)
    Q_PROPERTY(double assignee MEMBER assignee CONSTANT FINAL)
    Q_PROPERTY(double updated MEMBER updated CONSTANT FINAL)

public:
    static constexpr double absent = -1;

    /// The check box, 14 wide.
    double check = absent;
    /// Cells of 22.
    double priority = absent;
    double key = absent;
    double status = absent;
    /// 14 wide.
    double type = absent;
    double summary = absent;
    double summaryWidth = 0;
    double labels = absent;
    /// The first two by name; otherwise up to four dots.
    bool showsLabelNames = true;
    double due = absent;
    double dueWidth = 0;
    bool showsDueText = true;
    double assignee = absent;
    /// The date, or the latest event.
    double updated = absent;

    bool operator==(const RowPlan &) const = default;
};

RowPlan rowPlan(const RowContents &contents, double width);
