#include "screens/issues/board/CardIcons.h"

using namespace IssueIcons;

namespace {

constexpr double prioritySide = Metrics::cardPriority;
/// The height of the line with type and key, which is centred in the upper line.
constexpr double keyLine = 14;

PlacedPicture inMiddle(const PlacedPicture &picture, const QRectF &box)
{
    const QSizeF size = picture.key.size;
    return picture.at(box.topLeft() + QPointF(centred(box.width(), size.width()),
                                              centred(box.height(), size.height())));
}

PlacedPicture typeAt(const IssueType &kind, double x)
{
    const double y =
        CardPlan::margin + centred(CardPlan::headHeight, keyLine) + centred(keyLine, typeSide);
    return type(kind).at({x - typeBorder(), y - typeBorder()});
}

PlacedPicture onFoot(const PlacedPicture &picture, double x, const CardPlan &plan)
{
    return picture.at({x, plan.foot + centred(CardPlan::footHeight, picture.key.size.height())});
}

} // namespace

std::vector<PlacedPicture> cardIcons(const CardIconsInput &card)
{
    const auto &[issue, plan, style, isOverdue, person, hotSpot, isPressed] = card;
    std::vector<PlacedPicture> pictures;
    if (hotSpot.isCell())
        pictures.push_back(
            cellFill(hotSpot.box.size(), isPressed ? style.cellPressed : style.cellFill)
                .at(hotSpot.box.topLeft()));
    if (plan.type != CardPlan::absent && issue.type)
        pictures.push_back(typeAt(*issue.type, plan.type));
    pictures.push_back(inMiddle(assignee(issue.assignee, person), plan.assignee));
    pictures.push_back(cellEdge(plan.priority.size(), style.cellEdge).at(plan.priority.topLeft()));
    pictures.push_back(
        inMiddle(priority(issue.priorityLevel(), style, prioritySide), plan.priority));
    if (plan.due != CardPlan::absent)
        pictures.push_back(onFoot(due(plan.dueWidth, isOverdue, style), plan.due, plan));
    for (qsizetype i = 0; i < plan.labels.size(); ++i) {
        const auto &place = plan.labels[i];
        pictures.push_back(onFoot(chip(issue.labels.value(i), place.width, style), place.x, plan));
    }
    return pictures;
}
