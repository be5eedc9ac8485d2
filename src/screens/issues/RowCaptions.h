#pragma once

#include "screens/issues/RowCaption.h"
#include "screens/issues/RowPlan.h"
#include "screens/issues/RowStyle.h"

/// The captions of a row at their places: the names of labels that show, how many more there are, the due date.
QList<RowCaption> rowCaptions(const RowContents &contents, const RowPlan &plan,
                              const RowStyle &style, bool isOverdue);
