#include "screens/issues/list/RowLine.h"

#include "commands/ShortcutHints.h"
#include "screens/issues/face/PictureNode.h"
#include "screens/issues/list/RowCaptions.h"
#include "screens/issues/list/RowIcons.h"

namespace {

constexpr double cellSide = IssueIcons::cellSide;
constexpr double checkOutset = 4;
constexpr double typeWidth = 14;

bool isWithin(double x, double start, double width)
{
    return start != RowPlan::absent && x >= start && x < start + width;
}

} // namespace

void RowLine::setStyle(RowStyle *style)
{
    if (m_style == style)
        return;
    follow(std::exchange(m_style, style), style);
}

void RowLine::makePlan()
{
    if (!m_style)
        return;
    const RowContents contents{m_style->display, double(m_style->keyWidth), issue().labels,
                               issue().dueDate ? dueText() : QString(),
                               double(m_style->updatedWidth)};
    m_plan = rowPlan(contents, width());
    showCaptions(rowCaptions({contents, m_plan, *m_style, isOverdue(), height()}), *m_style);
}

HotSpot RowLine::spotAt(double x, double) const
{
    const double top = IssueIcons::centred(height(), cellSide);
    const auto spot = [top](double start, double width, const QString &hint,
                            std::optional<PickerKind> picker = {}) {
        return HotSpot{{start, top, width, cellSide}, hint, picker};
    };
    if (isWithin(x, m_plan.check - checkOutset, cellSide))
        return spot(m_plan.check - checkOutset, cellSide, selectHint());
    if (isWithin(x, m_plan.priority, cellSide))
        return spot(m_plan.priority, cellSide, displayName(issue().priorityLevel()),
                    PickerKind::Priority);
    if (isWithin(x, m_plan.status, cellSide))
        return spot(m_plan.status, cellSide, issue().status.displayName(), PickerKind::Status);
    if (isWithin(x, m_plan.type, typeWidth))
        return spot(m_plan.type, typeWidth, issue().type ? issue().type->name : QString());
    if (isWithin(x, m_plan.due, m_plan.dueWidth))
        return spot(m_plan.due, m_plan.dueWidth, dueTooltip());
    if (isWithin(x, m_plan.assignee, cellSide))
        return spot(m_plan.assignee, cellSide, assigneeHint(), PickerKind::Assignee);
    return {};
}

QSGNode *RowLine::updatePaintNode(QSGNode *old, UpdatePaintNodeData *)
{
    if (!m_style)
        return old;
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the item's node, which the scene graph owns
    auto *node = old ? static_cast<PictureNode *>(old) : new PictureNode;
    node->show(window(), rowIcons({.issue = issue(),
                                   .plan = m_plan,
                                   .style = *m_style,
                                   .isOverdue = isOverdue(),
                                   .person = assigneeFace(),
                                   .height = height(),
                                   .hotSpot = hotSpot()}));
    return node;
}
