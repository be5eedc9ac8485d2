#pragma once

#include "screens/issues/face/HotSpot.h"
#include "screens/issues/face/IssuePictures.h"
#include "screens/issues/list/RowPlan.h"
#include "screens/issues/list/RowStyle.h"

#include <vector>

/// What a row shows.
struct RowPicturesInput
{
    const Issue &issue;
    const RowPlan &plan;
    const RowStyle &style;
    bool isOverdue = false;
    /// The assignee's own picture, if it is there.
    QImage person;
    /// In logical pixels.
    double height = 0;
    /// What is under the pointer.
    HotSpot hotSpot;
};

/// All that is drawn on a row beside its texts.
std::vector<PlacedPicture> rowPictures(const RowPicturesInput &row);
