#pragma once

#include "screens/issues/board/CardPlan.h"
#include "screens/issues/board/CardStyle.h"
#include "screens/issues/face/Caption.h"

/// The inputs for the captions of a card.
struct CardCaptionsInput
{
    const QString &key;
    const CardContents &contents;
    const CardPlan &plan;
    const CardStyle &style;
    bool isOverdue = false;
};

/// All texts of a card.
QList<Caption> cardCaptions(const CardCaptionsInput &card);
