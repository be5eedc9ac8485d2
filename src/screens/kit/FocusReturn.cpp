#include "screens/kit/FocusReturn.h"

#include <QQuickWindow>

QQuickItem *FocusReturn::holder(const QQuickItem *near) const
{
    return near && near->window() ? near->window()->activeFocusItem() : nullptr;
}

void FocusReturn::giveBack(QQuickItem *holder) const
{
    if (!holder || !holder->window())
        return;
    // A closing popup leaves the focus to a focus scope around the former focus item, if to any item.
    const auto *now = holder->window()->activeFocusItem();
    if (!now || now->isAncestorOf(holder))
        holder->forceActiveFocus(Qt::PopupFocusReason);
}
