#include "screens/issues/list/RowLine.h"

#include "commands/ShortcutHints.h"
#include "screens/issues/list/RowCaptions.h"
#include "screens/issues/list/RowIcons.h"
#include "screens/issues/list/RowNode.h"

namespace {

using IssueIcons::cellSide;
constexpr double checkOutset = (Metrics::rowPicker - Metrics::checkBox) / 2.0;
constexpr double typeWidth = Metrics::rowType;

} // namespace

RowLine::RowLine(QQuickItem *parent) : IssueFace(parent)
{
    connect(this, &RowLine::menuChanged, this, &RowLine::update);
    connect(this, &RowLine::hoverChanged, this, &RowLine::update);
}

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
    const RowContents contents{.display = m_style->display,
                               .keyWidth = double(m_style->keyWidth),
                               .summary = issue().summary,
                               .parentSummary = issue().parentSummary(),
                               .labels = issue().labels,
                               .dueText = issue().dueDate ? dueText() : QString(),
                               .updatedWidth = double(m_style->updatedWidth)};
    m_plan = rowPlan(contents, width());
    showCaptions(rowCaptions({.key = issue().key,
                              .contents = contents,
                              .plan = m_plan,
                              .style = *m_style,
                              .updatedText = m_showsEvent ? QString() : m_updatedText,
                              .isOverdue = isOverdue(),
                              .height = height()}));
}

HotSpot RowLine::spotAt(double x, double y) const
{
    const double top = IssueIcons::centred(height(), cellSide);
    const auto column = [&](double start, double width) {
        const HotSpot spot{{start, top, width, cellSide}};
        return start != RowPlan::absent && spot.holds({x, y}) ? spot.box : QRectF();
    };
    if (const auto box = column(m_plan.check - checkOutset, cellSide); box.isValid())
        return {.box = box, .hint = selectHint(), .isCheck = true};
    if (const auto box = column(m_plan.priority, cellSide); box.isValid())
        return {box, displayName(issue().priorityLevel()), PickerKind::Priority};
    if (const auto box = column(m_plan.status, cellSide); box.isValid())
        return {box, issue().status.displayName(), PickerKind::Status};
    if (const auto box = column(m_plan.type, typeWidth); box.isValid())
        return {box, issue().type ? issue().type->name : QString()};
    if (const auto box = column(m_plan.due, m_plan.dueWidth); box.isValid())
        return {box, dueTooltip()};
    if (const auto box = column(m_plan.assignee, cellSide); box.isValid())
        return {box, assigneeHint(), PickerKind::Assignee};
    return {};
}

QColor RowLine::fill() const
{
    if (isChecked())
        return m_style->checkedFill;
    if (isOpen())
        return m_style->openFill;
    return isFocused() || isHovered() || hasMenu() ? m_style->hoverFill : QColor(Qt::transparent);
}

QSGNode *RowLine::updatePaintNode(QSGNode *old, UpdatePaintNodeData *)
{
    if (!m_style)
        return old;
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the item's node, which the scene graph owns
    auto *node = old ? static_cast<RowNode *>(old) : new RowNode(*this);
    node->showFill(window(), size(), fill());
    node->showFace(window(),
                   rowIcons({.issue = issue(),
                             .plan = m_plan,
                             .style = *m_style,
                             .isOverdue = isOverdue(),
                             .person = assigneeFace(),
                             .height = height(),
                             .isFocused = isFocused(),
                             .hotSpot = hotSpot(),
                             .isPressed = isSpotPressed()}),
                   captions());
    return node;
}
