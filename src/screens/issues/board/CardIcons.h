#pragma once

#include "screens/issues/board/CardPlan.h"
#include "screens/issues/board/CardStyle.h"
#include "screens/issues/face/HotSpot.h"
#include "screens/issues/face/IssueIcons.h"

#include <vector>

/// The inputs for the pictures of a card.
struct CardIconsInput
{
    const Issue &issue;
    const CardPlan &plan;
    const CardStyle &style;
    bool isOverdue = false;
    /// The assignee's photograph, if it is available.
    QImage person;
    /// The hot spot under the pointer.
    HotSpot hotSpot;
    /// The hot spot is pressed.
    bool isPressed = false;
};

/// All pictures of a card, which are everything except its background and its texts.
std::vector<PlacedPicture> cardIcons(const CardIconsInput &card);
