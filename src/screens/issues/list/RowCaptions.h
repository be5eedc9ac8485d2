#pragma once

#include "screens/issues/face/Caption.h"
#include "screens/issues/list/RowPlan.h"
#include "screens/issues/list/RowStyle.h"

/// The inputs for the captions between the summary and the assignee of a row.
struct RowCaptionsInput
{
    const RowContents &contents;
    const RowPlan &plan;
    const RowStyle &style;
    bool isOverdue = false;
    /// The height of the row, in logical pixels.
    double height = 0;
};

QList<Caption> rowCaptions(const RowCaptionsInput &row);
