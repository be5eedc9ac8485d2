#include "screens/kit/overlays/PopoverPlacement.h"

#include <algorithm>
#include <cmath>

namespace {

/// The desired position, limited to the window. The start of the window if the popover does not fit.
qreal kept(qreal wish, qreal length, qreal room)
{
    const qreal last = room - PopoverPlacement::margin - length;
    return std::round(std::max(std::min(wish, last), PopoverPlacement::margin));
}

qreal aligned(const QRectF &anchor, qreal width, PopoverPlacement::Alignment alignment)
{
    switch (alignment) {
    case PopoverPlacement::Leading:
        return anchor.left();
    case PopoverPlacement::Centre:
        return anchor.center().x() - width / 2;
    case PopoverPlacement::Trailing:
        break;
    }
    return anchor.right() - width;
}

qreal besideVertically(const QRectF &anchor, qreal height, qreal room)
{
    const qreal below = anchor.bottom() + PopoverPlacement::gap;
    const qreal above = anchor.top() - PopoverPlacement::gap - height;
    const bool fitsBelow = below + height <= room - PopoverPlacement::margin;
    const bool roomIsBelow = room - anchor.bottom() >= anchor.top();
    return fitsBelow || roomIsBelow ? below : above;
}

} // namespace

QPointF PopoverPlacement::beside(const QRectF &anchor, const QSizeF &size, const QSizeF &window,
                                 Alignment alignment)
{
    return {kept(aligned(anchor, size.width(), alignment), size.width(), window.width()),
            kept(besideVertically(anchor, size.height(), window.height()), size.height(),
                 window.height())};
}

QPointF PopoverPlacement::place(const QRectF &anchor, const QSizeF &size, const QSizeF &window,
                                int alignment) const
{
    return beside(anchor, size, window, static_cast<Alignment>(alignment)) - anchor.topLeft();
}

qreal PopoverPlacement::lowerEnd(const QQuickItem *item) const
{
    qreal end = item->height();
    for (const auto *around = item->parentItem(); around; around = around->parentItem()) {
        if (around->clip())
            end = std::min(end, item->mapFromItem(around, QPointF(0, around->height())).y());
    }
    return end;
}
