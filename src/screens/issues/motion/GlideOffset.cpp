#include "screens/issues/motion/GlideOffset.h"

GlideOffset::GlideOffset(QQuickItem *item) : QQuickTransform(item)
{
    appendToItem(item);
}

GlideOffset &GlideOffset::of(QQuickItem &item)
{
    auto *known = item.findChild<GlideOffset *>(QString(), Qt::FindDirectChildrenOnly);
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the item owns it, as its parent
    return known ? *known : *new GlideOffset(&item);
}

void GlideOffset::setOffset(QPointF offset)
{
    if (m_offset == offset)
        return;
    m_offset = offset;
    update();
}

void GlideOffset::applyTo(QMatrix4x4 *matrix) const
{
    matrix->translate(float(m_offset.x()), float(m_offset.y()));
}
