#pragma once

#include "screens/issues/face/HotSpot.h"
#include "screens/issues/face/IssueIcons.h"
#include "screens/issues/list/RowPlan.h"
#include "screens/issues/list/RowStyle.h"

#include <vector>

/// The inputs for the pictures of a row.
struct RowIconsInput
{
    const Issue &issue;
    const RowPlan &plan;
    const RowStyle &style;
    bool isOverdue = false;
    /// The assignee's photograph, if it is available.
    QImage person;
    /// The height of the row, in logical pixels.
    double height = 0;
    bool isFocused = false;
    /// The hot spot under the pointer.
    HotSpot hotSpot;
    /// The hot spot is pressed.
    bool isPressed = false;
};

/// All pictures of a row, which are everything except its texts.
std::vector<PlacedPicture> rowIcons(const RowIconsInput &row);
