#include "screens/issues/board/CardCaptions.h"

#include "screens/issues/face/IssueCaptions.h"
#include "screens/issues/face/IssueIcons.h"
#include "screens/issues/list/RowFit.h"
#include "screens/kit/painters/ChipPainter.h"

using namespace IssueCaptions;

namespace {

/// Centres a caption vertically in the chips, which are themselves centred in the lower line.
Caption onFoot(double x, const CardPlan &plan, const Caption &caption)
{
    const double top =
        plan.foot + IssueIcons::centred(CardPlan::footHeight, IssueIcons::chipHeight);
    return inMiddle({x, top}, IssueIcons::chipHeight, caption);
}

Caption labelOn(const CardLabel &place, const QString &name, const CardCaptionsInput &card)
{
    Caption caption =
        onFoot(place.x + ChipLayout::labelText, card.plan, label(name, card.style.quiet));
    if (place.width < RowFitting::labelsWidth({name}))
        caption.width = place.width - ChipLayout::labelFrame;
    return caption;
}

} // namespace

QList<Caption> cardCaptions(const CardCaptionsInput &card)
{
    const auto &plan = card.plan;
    QList<Caption> captions{inMiddle({plan.key, CardPlan::margin}, CardPlan::headHeight,
                                     key(card.key, card.style.quiet))};
    if (plan.due != CardPlan::absent) {
        const QColor color = card.isOverdue ? card.style.late : card.style.quiet;
        captions += onFoot(plan.due + ChipLayout::dueText, plan, due(card.contents.dueText, color));
    }
    for (qsizetype i = 0; i < card.contents.title.size(); ++i) {
        Caption line =
            caption(card.contents.title[i], TypeScale::Body, QFont::Medium, card.style.ink);
        line.place = {CardPlan::margin, CardPlan::titleTop + double(i) * line.height};
        captions += line;
    }
    for (qsizetype i = 0; i < plan.labels.size(); ++i)
        captions += labelOn(plan.labels[i], card.contents.labels.value(i), card);
    return captions;
}
