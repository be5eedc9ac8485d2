#include "screens/kit/layers/KeyMonitorModifier.h"

#include "screens/kit/layers/WindowLayers.h"

KeyMonitorModifier::KeyMonitorModifier(QQuickItem *parent) : QQuickItem(parent) {}

KeyMonitorModifier::~KeyMonitorModifier()
{
    if (m_monitor)
        m_monitor->removeMonitor(*this);
}

void KeyMonitorModifier::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemSceneChange || change == ItemVisibleHasChanged)
        follow();
}

void KeyMonitorModifier::follow()
{
    auto *seen = isVisible() && window() ? &WindowLayers::of(*window()) : nullptr;
    if (m_monitor == seen)
        return;
    if (m_monitor)
        m_monitor->removeMonitor(*this);
    m_monitor = seen;
    if (m_monitor)
        m_monitor->addMonitor(*this);
}
