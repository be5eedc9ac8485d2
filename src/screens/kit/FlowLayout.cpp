#include "screens/kit/FlowLayout.h"

#include <algorithm>

FlowPlan flowPlan(const QList<QSizeF> &children, qreal width, const FlowSpacing &spacing)
{
    FlowPlan plan;
    QPointF pen;
    qreal lineHeight = 0;
    qreal widest = 0;
    for (const auto &child : children) {
        if (pen.x() > 0 && pen.x() + child.width() > width) {
            pen = {0, pen.y() + lineHeight + spacing.lines};
            lineHeight = 0;
        }
        plan.places.append(pen);
        pen.rx() += child.width() + spacing.between;
        lineHeight = std::max(lineHeight, child.height());
        widest = std::max(widest, pen.x() - spacing.between);
    }
    plan.size = {std::min(width, widest), pen.y() + lineHeight};
    return plan;
}

FlowLayout::~FlowLayout()
{
    for (auto *child : childItems())
        child->disconnect(this);
}

void FlowLayout::setSpacing(qreal spacing)
{
    changeSpacing(m_spacing.between, spacing);
}

void FlowLayout::setLineSpacing(qreal spacing)
{
    changeSpacing(m_spacing.lines, spacing);
}

void FlowLayout::changeSpacing(qreal &value, qreal spacing)
{
    if (value == spacing)
        return;
    value = spacing;
    Q_EMIT spacingChanged();
    measure();
}

void FlowLayout::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemChildAddedChange) {
        for (const auto changed : {&QQuickItem::implicitWidthChanged,
                                   &QQuickItem::implicitHeightChanged, &QQuickItem::visibleChanged})
            connect(data.item, changed, this, &FlowLayout::measure);
        measure();
    } else if (change == ItemChildRemovedChange) {
        data.item->disconnect(this);
        measure();
    }
}

void FlowLayout::geometryChange(const QRectF &now, const QRectF &before)
{
    QQuickItem::geometryChange(now, before);
    if (now.width() != before.width())
        measure();
}

void FlowLayout::componentComplete()
{
    QQuickItem::componentComplete();
    measure();
}

QList<QQuickItem *> FlowLayout::shownChildren() const
{
    QList<QQuickItem *> shown;
    const auto children = childItems();
    std::ranges::copy_if(children, std::back_inserter(shown), [](const QQuickItem *child) {
        // A repeater is also a child, but has no size.
        return child->isVisible() && child->implicitWidth() > 0;
    });
    return shown;
}

namespace {

QList<QSizeF> sizesOf(const QList<QQuickItem *> &items)
{
    QList<QSizeF> sizes;
    std::ranges::transform(items, std::back_inserter(sizes), [](const QQuickItem *item) {
        return QSizeF(item->implicitWidth(), item->implicitHeight());
    });
    return sizes;
}

} // namespace

// The implicit size is updated at once, because the parent's layout depends on it. The children are positioned before
// the next frame.
void FlowLayout::measure()
{
    if (!isComponentComplete())
        return;
    const auto sizes = sizesOf(shownChildren());
    const qreal oneLine = flowPlan(sizes, qInf(), m_spacing).size.width();
    const qreal proposed = width() > 0 ? width() : qInf();
    setImplicitSize(oneLine, flowPlan(sizes, proposed, m_spacing).size.height());
    polish();
}

void FlowLayout::updatePolish()
{
    const auto children = shownChildren();
    const auto plan = flowPlan(sizesOf(children), width() > 0 ? width() : qInf(), m_spacing);
    for (qsizetype i = 0; i < children.size(); ++i)
        children[i]->setPosition(plan.places[i]);
}
