#pragma once

#include "screens/issues/board/CardPlan.h"
#include "screens/issues/board/CardStyle.h"
#include "screens/issues/face/Caption.h"

/// What decides the short texts of a card.
struct CardCaptionsInput
{
    const QString &key;
    const CardContents &contents;
    const CardPlan &plan;
    const CardStyle &style;
    bool isOverdue = false;
};

/// The texts of a card beside its summary.
QList<Caption> cardCaptions(const CardCaptionsInput &card);
