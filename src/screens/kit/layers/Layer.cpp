#include "screens/kit/layers/Layer.h"

#include "screens/kit/layers/WindowLayers.h"

#include <QQuickWindow>

Layer::Layer(QObject *parent) : QObject(parent) {}

Layer::~Layer()
{
    if (m_layers)
        m_layers->forget(*this);
}

void Layer::setItem(QQuickItem *item)
{
    if (m_item == item)
        return;
    if (m_item)
        m_item->disconnect(this);
    m_item = item;
    if (m_item)
        connect(m_item, &QQuickItem::windowChanged, this, &Layer::follow);
    Q_EMIT itemChanged();
    follow();
}

void Layer::setIsOpen(bool open)
{
    if (m_isOpen == open)
        return;
    m_isOpen = open;
    // Before the signal, so that a layer that opens because of it is above this one.
    follow();
    Q_EMIT isOpenChanged();
}

void Layer::componentComplete()
{
    m_isComplete = true;
    follow();
}

bool Layer::contains(const QQuickItem *item) const
{
    return m_item && item && (item == m_item || m_item->isAncestorOf(item));
}

bool Layer::hasFocus() const
{
    const auto *window = m_item ? m_item->window() : nullptr;
    return window && contains(window->activeFocusItem());
}

void Layer::follow()
{
    if (!m_isComplete)
        return;
    auto *window = m_isOpen && m_item ? m_item->window() : nullptr;
    auto *layers = window ? &WindowLayers::of(*window) : nullptr;
    if (m_layers == layers)
        return;
    if (auto *former = std::exchange(m_layers, layers).get()) {
        if (m_item && m_item->window())
            former->close(*this);
        else
            former->forget(*this);
    }
    if (!layers)
        return;
    if (m_replacesOthers)
        layers->requestCloseAll();
    layers->open(*this);
    if (m_replacesOthers)
        m_item->forceActiveFocus(Qt::PopupFocusReason);
}
