#include "screens/kit/controls/TabArrival.h"

#include <QFocusEvent>

void TabArrival::setItem(QQuickItem *item)
{
    if (m_item == item)
        return;
    if (m_item)
        m_item->removeEventFilter(this);
    m_item = item;
    if (item)
        item->installEventFilter(this);
    show(false);
    Q_EMIT itemChanged();
}

bool TabArrival::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn) {
        const auto reason = static_cast<QFocusEvent *>(event)->reason();
        show(reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason);
    } else if (event->type() == QEvent::FocusOut) {
        show(false);
    }
    return QObject::eventFilter(watched, event);
}

void TabArrival::show(bool isShown)
{
    if (m_isShown == isShown)
        return;
    m_isShown = isShown;
    Q_EMIT isShownChanged();
}
