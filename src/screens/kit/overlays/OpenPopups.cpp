#include "screens/kit/overlays/OpenPopups.h"

#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>

#include <ranges>

namespace {

/// The items that a window shows its popups in, from the lowest to the topmost.
QList<QQuickItem *> popupItems(const QQuickWindow &window)
{
    QList<QQuickItem *> items;
    for (const auto *layer : window.contentItem()->childItems()) {
        if (layer->inherits("QQuickOverlay"))
            items += layer->childItems();
    }
    items.removeIf([](const QQuickItem *item) { return !item->inherits("QQuickPopupItem"); });
    return items;
}

} // namespace

void OpenPopups::close(const QQuickWindow &window)
{
    QList<QPointer<QObject>> popups;
    for (const auto *item : popupItems(window))
        popups += item->parent();
    // One that closes may take others with it.
    for (const auto &popup : std::views::reverse(popups)) {
        if (popup && !popup->property("dim").toBool())
            QMetaObject::invokeMethod(popup, "close");
    }
}
