#pragma once

#include <QRectF>

class QQuickItem;

/// The part of an item, of any height, that the window and the clipping items around it let through, in the coordinates
/// of the item. Empty while the item is hidden or in no window.
QRectF visiblePart(const QQuickItem &item);
