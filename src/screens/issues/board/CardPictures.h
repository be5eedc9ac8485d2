#pragma once

#include "screens/issues/board/CardPlan.h"
#include "screens/issues/board/CardStyle.h"
#include "screens/issues/face/HotSpot.h"
#include "screens/issues/face/IssuePictures.h"

#include <vector>

/// What a card shows.
struct CardPicturesInput
{
    const Issue &issue;
    const CardPlan &plan;
    const CardStyle &style;
    bool isOverdue = false;
    /// The assignee's own picture, if it is there.
    QImage person;
    /// What is under the pointer.
    HotSpot hotSpot;
};

/// All that is drawn on a card beside its ground and its texts.
std::vector<PlacedPicture> cardPictures(const CardPicturesInput &card);
