#include "screens/options/KeyMonitorModifier.h"

#include <QKeyEvent>
#include <QQuickWindow>

KeyMonitorModifier::KeyMonitorModifier(QQuickItem *parent) : QQuickItem(parent) {}

KeyMonitorModifier::~KeyMonitorModifier()
{
    if (m_monitor)
        m_monitor->removeEventFilter(this);
}

void KeyMonitorModifier::setHandler(KeyHandler *handler)
{
    if (m_handler == handler)
        return;
    m_handler = handler;
    Q_EMIT handlerChanged();
}

void KeyMonitorModifier::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemSceneChange || change == ItemVisibleHasChanged)
        follow();
}

void KeyMonitorModifier::follow()
{
    QQuickWindow *seen = isVisible() ? window() : nullptr;
    if (m_monitor == seen)
        return;
    if (m_monitor)
        m_monitor->removeEventFilter(this);
    m_monitor = seen;
    if (m_monitor)
        m_monitor->installEventFilter(this);
}

bool KeyMonitorModifier::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || watched != m_monitor || !m_handler ||
        !parentItem()->hasActiveFocus())
        return false;
    return m_handler->handle(KeyPress::from(static_cast<const QKeyEvent &>(*event)));
}
