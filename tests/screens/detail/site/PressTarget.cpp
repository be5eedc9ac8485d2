#include "screens/detail/site/PressTarget.h"

#include <algorithm>

namespace {

/// The children in the order in which they are painted.
QList<QQuickItem *> painted(const QQuickItem &item)
{
    QList<QQuickItem *> children;
    for (QQuickItem *child : item.childItems())
        children.insert(std::ranges::upper_bound(children, child->z(), {}, &QQuickItem::z), child);
    return children;
}

/// The overlay covers its window whenever a popup is open, but it takes presses for itself only beside a modal one.
bool takesPresses(const QQuickItem &item)
{
    if (!item.acceptedMouseButtons().testFlag(Qt::LeftButton))
        return false;
    if (!item.inherits("QQuickOverlay"))
        return true;
    return std::ranges::any_of(item.childItems(), [](const QQuickItem *popup) {
        return popup->isVisible() && popup->parent() && popup->parent()->property("modal").toBool();
    });
}

} // namespace

QQuickItem *pressTarget(QQuickItem &item, QPointF scene)
{
    if (!item.isVisible() || qFuzzyIsNull(item.opacity()))
        return nullptr;
    const bool contains = item.contains(item.mapFromScene(scene));
    if (item.clip() && !contains)
        return nullptr;
    const auto children = painted(item);
    for (auto child = children.rbegin(); child != children.rend(); ++child) {
        const bool isBelow = (*child)->z() < 0;
        if (isBelow && contains && takesPresses(item))
            return &item;
        if (auto *found = pressTarget(**child, scene))
            return found;
    }
    return contains && takesPresses(item) ? &item : nullptr;
}

bool isInside(const QQuickItem *item, const QQuickItem &whole)
{
    while (item && item != &whole)
        item = item->parentItem();
    return item != nullptr;
}
