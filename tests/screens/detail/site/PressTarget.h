#pragma once

#include <QQuickItem>

/// The topmost item in `item` that takes presses at a point of the scene, as the window finds it. Null if there is none.
QQuickItem *pressTarget(QQuickItem &item, QPointF scene);

/// Whether an item is this one or one of its descendants. False for null.
bool isInside(const QQuickItem *item, const QQuickItem &whole);
