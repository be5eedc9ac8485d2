#pragma once

#include "screens/issues/Caption.h"
#include "screens/issues/CardPlan.h"
#include "screens/issues/CardStyle.h"

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
