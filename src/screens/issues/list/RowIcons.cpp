#include "screens/issues/list/RowIcons.h"

#include "screens/issues/list/RowFit.h"

using namespace IssueIcons;

namespace {

/// Centres a picture in a cell that starts at `x`.
PlacedPicture inCell(const PlacedPicture &picture, double x, double height)
{
    const QSizeF size = picture.key.size;
    return picture.at({x + (cellSide - size.width()) / 2, centred(height, size.height())});
}

PlacedPicture atX(const PlacedPicture &picture, double x, double height)
{
    return picture.at({x, centred(height, picture.key.size.height())});
}

void addNames(std::vector<PlacedPicture> &pictures, const RowIconsInput &row)
{
    const auto &labels = row.issue.labels;
    double x = row.plan.labels;
    for (const auto &label : labels.first(std::min(RowFitting::labelsShown, labels.size()))) {
        const double width = RowFitting::labelsWidth({label});
        pictures.push_back(atX(chip(label, width, row.style), x, row.height));
        x += width + Metrics::chipGap;
    }
}

void addDots(std::vector<PlacedPicture> &pictures, const RowIconsInput &row)
{
    const auto &labels = row.issue.labels;
    double x = row.plan.labels;
    for (const auto &label : labels.first(std::min(RowFitting::dotsShown, labels.size()))) {
        pictures.push_back(atX(dot(label), x, row.height));
        x += Metrics::labelDot + Metrics::labelDotGap;
    }
}

} // namespace

std::vector<PlacedPicture> rowIcons(const RowIconsInput &row)
{
    const auto &[issue, plan, style, isOverdue, person, height, isFocused, hotSpot, isPressed] =
        row;
    std::vector<PlacedPicture> pictures;
    if (isFocused)
        pictures.push_back(focusBar(height - 2 * Metrics::focusBarInset, style.focusBar)
                               .at({0, Metrics::focusBarInset}));
    if (hotSpot.isCell())
        pictures.push_back(
            cellFill(hotSpot.box.size(), isPressed ? style.cellPressed : style.cellFill)
                .at(hotSpot.box.topLeft()));
    if (plan.priority != RowPlan::absent)
        pictures.push_back(inCell(priority(issue.priorityLevel(), style, Metrics::statusIcon),
                                  plan.priority, height));
    pictures.push_back(
        inCell(status(issue.status, style, Metrics::statusIcon), plan.status, height));
    if (plan.type != RowPlan::absent && issue.type)
        pictures.push_back(atX(type(*issue.type), plan.type - typeBorder(), height));
    if (plan.parent != RowPlan::absent)
        pictures.push_back(atX(chevron(RowPlan::parentMark, style.parentInk),
                               plan.parent - chevronBorder(RowPlan::parentMark), height));
    if (plan.labels != RowPlan::absent)
        plan.showsLabelNames ? addNames(pictures, row) : addDots(pictures, row);
    if (plan.due != RowPlan::absent)
        pictures.push_back(atX(due(plan.dueWidth, isOverdue, style), plan.due, height));
    if (plan.assignee != RowPlan::absent)
        pictures.push_back(inCell(assignee(issue.assignee, person), plan.assignee, height));
    return pictures;
}
