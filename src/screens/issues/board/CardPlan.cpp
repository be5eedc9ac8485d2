#include "screens/issues/board/CardPlan.h"

#include "screens/issues/board/CardStyle.h"
#include "screens/issues/face/IssueIcons.h"
#include "screens/issues/list/RowFit.h"

#include <algorithm>

using namespace IssueIcons;

namespace {

constexpr double gap = Metrics::cardGap;
/// The assignee's picture is aligned with the right end of the card's text. The cell around it extends further.
constexpr double cellOutset = (cellSide - avatarSide) / 2;
constexpr double narrowestLabel = Metrics::cardLabelMinimum;

void placeHead(CardPlan &plan, const CardContents &contents, double width)
{
    plan.key = CardPlan::margin;
    if (contents.hasType) {
        plan.type = CardPlan::margin;
        plan.key += typeSide + gap;
    }
    plan.assignee = {width - CardPlan::margin + cellOutset - cellSide,
                     CardPlan::margin + centred(CardPlan::headHeight, cellSide), cellSide,
                     cellSide};
}

/// Lays out labels from `start`. The first one leaves enough width for the dot of the second, and both end before the
/// edge.
QList<CardLabel> labelPlaces(const QStringList &labels, double start, double end)
{
    QList<CardLabel> places;
    const qsizetype shown = std::min(RowFitting::labelsShown, labels.size());
    for (qsizetype i = 0; i < shown; ++i) {
        const double rest = double(shown - i - 1) * (gap + narrowestLabel);
        const double room = std::max(narrowestLabel, end - rest - start);
        const CardLabel place{start, std::min(RowFitting::labelsWidth({labels[i]}), room)};
        places += place;
        start = place.x + place.width + gap;
    }
    return places;
}

void placeFoot(CardPlan &plan, const CardContents &contents, double width)
{
    plan.priority = {CardPlan::margin, plan.foot, cellSide, CardPlan::footHeight};
    double x = plan.priority.right() + gap;
    if (!contents.dueText.isEmpty()) {
        plan.due = x;
        plan.dueWidth = RowFitting::dueWidth(contents.dueText);
        x += plan.dueWidth + gap;
    }
    plan.labels = labelPlaces(contents.labels, x, width - CardPlan::margin);
}

} // namespace

CardPlan cardPlan(const CardContents &contents, double width)
{
    CardPlan plan;
    plan.foot = CardPlan::titleTop + double(contents.title.size()) * CardStyle::titleLine() +
                Metrics::cardPartGap;
    plan.height = plan.foot + CardPlan::footHeight + CardPlan::margin;
    placeHead(plan, contents, width);
    placeFoot(plan, contents, width);
    return plan;
}
