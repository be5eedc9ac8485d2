#pragma once

#include "screens/issues/face/Caption.h"
#include "screens/issues/list/RowPlan.h"
#include "screens/issues/list/RowStyle.h"

/// The inputs for the captions of a row.
struct RowCaptionsInput
{
    const QString &key;
    const RowContents &contents;
    const RowPlan &plan;
    const RowStyle &style;
    /// The relative date in the last column; empty if the latest event is shown there.
    QString updatedText;
    bool isOverdue = false;
    /// The height of the row, in logical pixels.
    double height = 0;
};

/// All texts of a row except those of its latest event.
QList<Caption> rowCaptions(const RowCaptionsInput &row);
