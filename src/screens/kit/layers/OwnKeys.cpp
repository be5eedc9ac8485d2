#include "screens/kit/layers/OwnKeys.h"

#include <memory>

OwnKeys *OwnKeys::qmlAttachedProperties(QObject *item)
{
    // The item owns the attached object.
    return std::make_unique<OwnKeys>(item).release();
}

bool OwnKeys::isInWalkedList(const QQuickItem &item)
{
    return isAround(item, &OwnKeys::m_walksRows);
}

bool OwnKeys::isInScrolledPage(const QQuickItem &item)
{
    return isAround(item, &OwnKeys::m_scrolls);
}

bool OwnKeys::isAround(const QQuickItem &item, bool OwnKeys::*declared)
{
    for (const auto *each = &item; each; each = each->parentItem()) {
        const auto *own = qobject_cast<OwnKeys *>(
            qmlAttachedPropertiesObject<OwnKeys>(const_cast<QQuickItem *>(each), false));
        if (own && own->*declared)
            return true;
    }
    return false;
}
