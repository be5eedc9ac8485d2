#include "screens/issues/board/CardFace.h"

#include "screens/issues/board/CardCaptions.h"
#include "screens/issues/board/CardIcons.h"
#include "screens/issues/board/CardNode.h"
#include "screens/issues/face/TextMeasure.h"
#include "screens/theme/Springs.h"

using namespace IssueIcons;

CardFace::CardFace(QQuickItem *parent) : IssueFace(parent)
{
    connect(this, &CardFace::menuChanged, this, &CardFace::followLift);
    connect(this, &CardFace::hoverChanged, this, &CardFace::followLift);
}

void CardFace::setStyle(CardStyle *style)
{
    if (m_style == style)
        return;
    follow(std::exchange(m_style, style), style);
}

void CardFace::makePlan()
{
    if (!m_style)
        return;
    const CardContents contents{
        .hasType = issue().type.has_value(),
        .labels = issue().labels,
        .dueText = issue().dueDate ? dueText() : QString(),
        .title = TextMeasure::wrapped(issue().summary, CardStyle::titleFont(),
                                      width() - 2 * CardPlan::margin, CardPlan::titleLines)};
    m_plan = cardPlan(contents, width());
    setImplicitHeight(m_plan.height);
    showCaptions(cardCaptions({issue().key, contents, m_plan, *m_style, isOverdue()}));
}

HotSpot CardFace::spotAt(double x, double y) const
{
    const QPointF place(x, y);
    if (const HotSpot spot{m_plan.assignee, assigneeHint(), PickerKind::Assignee};
        spot.holds(place))
        return spot;
    if (const HotSpot spot{m_plan.priority, {}, PickerKind::Priority}; spot.holds(place))
        return spot;
    const QRectF type(m_plan.type, CardPlan::margin, typeSide, CardPlan::headHeight);
    if (m_plan.type != CardPlan::absent && issue().type && type.contains(place))
        return {type, issue().type->name};
    const QRectF due(m_plan.due, m_plan.foot, m_plan.dueWidth, CardPlan::footHeight);
    if (m_plan.due != CardPlan::absent && due.contains(place))
        return {due, dueTooltip()};
    return {};
}

void CardFace::followLift()
{
    const double target = isHovered() || hasMenu() ? 1 : 0;
    if (!m_rise) {
        // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): this owns it, as its parent
        m_rise = new QVariantAnimation(this);
        m_rise->setEasingCurve(Springs::even());
        connect(m_rise, &QVariantAnimation::valueChanged, this, [this](const QVariant &value) {
            m_lift = value.toDouble();
            update();
        });
    }
    m_rise->stop();
    m_rise->setDuration(m_style ? m_style->liftDuration : 0);
    m_rise->setStartValue(m_lift);
    m_rise->setEndValue(target);
    m_rise->start();
}

CardGround CardFace::ground() const
{
    if (isChecked() || isOpen())
        return {.fill = m_style->fill, .edge = m_style->strongEdge, .edgeWidth = 1.5};
    return {.fill = m_style->fill, .edge = isFocused() ? m_style->focusEdge : m_style->restEdge};
}

QSGNode *CardFace::updatePaintNode(QSGNode *old, UpdatePaintNodeData *)
{
    if (!m_style)
        return old;
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the item's node, which the scene graph owns
    auto *node = old ? static_cast<CardNode *>(old) : new CardNode(*this);
    node->showGround(window(), size(), ground(), m_lift);
    node->showFace(window(),
                   cardIcons({.issue = issue(),
                              .plan = m_plan,
                              .style = *m_style,
                              .isOverdue = isOverdue(),
                              .person = assigneeFace(),
                              .hotSpot = hotSpot(),
                              .isPressed = isSpotPressed()}),
                   captions());
    return node;
}
