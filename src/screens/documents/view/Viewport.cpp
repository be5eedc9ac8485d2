#include "screens/documents/view/Viewport.h"

#include <QQuickItem>
#include <QQuickWindow>

QRectF visiblePart(const QQuickItem &item)
{
    constexpr double anyHeight = 1e9;
    const auto *window = item.window();
    if (!window || !item.isVisible())
        return {};
    const QRectF whole(0, 0, item.width(), anyHeight);
    QRectF part = whole & item.mapRectFromScene(QRectF(QPointF(), window->size()));
    for (auto *around = item.parentItem(); around && !part.isEmpty();
         around = around->parentItem()) {
        if (around->clip() || around->flags().testFlag(QQuickItem::ItemIsViewport))
            part &= item.mapRectFromItem(around, around->boundingRect());
    }
    return part;
}
