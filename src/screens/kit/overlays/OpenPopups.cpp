#include "screens/kit/overlays/OpenPopups.h"

#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>

#include <ranges>

namespace {

/// The items in which a window shows its popups, from bottom to top.
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
    // A popup that closes may close others too.
    for (const auto &popup : std::views::reverse(popups)) {
        if (popup && !popup->property("dim").toBool())
            QMetaObject::invokeMethod(popup, "close");
    }
}
