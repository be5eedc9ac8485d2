#include "screens/kit/layers/WindowLayers.h"

#include <algorithm>
#include <array>
#include <memory>
#include <ranges>

namespace {

/// Holding one of these keys down repeats its effect in any control.
constexpr std::array movementKeys{Qt::Key_Up,   Qt::Key_Down,   Qt::Key_Left,   Qt::Key_Right,
                                  Qt::Key_Home, Qt::Key_End,    Qt::Key_PageUp, Qt::Key_PageDown,
                                  Qt::Key_Tab,  Qt::Key_Backtab};
bool isMovement(const QKeyEvent &press)
{
    return std::ranges::find(movementKeys, press.key()) != movementKeys.end();
}

bool mustHoldFocus(const Layer &layer)
{
    return layer.kind() != Layer::Kind::Content && !layer.leavesFocus();
}

bool isMultiLine(QQuickItem &field)
{
    const auto hints = field.inputMethodQuery(Qt::ImHints).value<Qt::InputMethodHints>();
    return hints.testFlag(Qt::ImhMultiLine);
}

} // namespace

WindowLayers &WindowLayers::of(QQuickWindow &window)
{
    if (auto *known = window.findChild<WindowLayers *>({}, Qt::FindDirectChildrenOnly))
        return *known;
    // The window owns its children.
    return *std::unique_ptr<WindowLayers>(new WindowLayers(window)).release();
}

WindowLayers::WindowLayers(QQuickWindow &window) : QObject(&window), m_window(&window)
{
    window.installEventFilter(this);
}

void WindowLayers::addMonitor(KeyMonitorModifier &monitor)
{
    m_monitors.append(&monitor);
}

void WindowLayers::removeMonitor(KeyMonitorModifier &monitor)
{
    m_monitors.removeOne(&monitor);
}

bool WindowLayers::receivesKeys(const KeyMonitorModifier &monitor) const
{
    const auto *parent = monitor.parentItem();
    const auto *focus = m_window->activeFocusItem();
    const bool isAroundFocus = focus && (focus == parent || parent->isAncestorOf(focus));
    if (!top())
        return isAroundFocus;
    return top()->contains(&monitor) &&
           (isAroundFocus || top()->leavesFocus() || parent == top()->item());
}

QList<QPointer<KeyHandler>> WindowLayers::handlers() const
{
    QList<QPointer<KeyHandler>> found;
    for (const auto *monitor : std::views::reverse(m_monitors)) {
        if (monitor->handler() && receivesKeys(*monitor))
            found.append(monitor->handler());
    }
    return found;
}

void WindowLayers::open(Layer &layer)
{
    const auto at = layer.kind() == Layer::Kind::Content ? m_open.begin() : m_open.end();
    m_open.insert(at, {.layer = &layer, .before = focusPath()});
}

void WindowLayers::close(Layer &layer)
{
    const bool hadFocus = layer.hasFocus();
    const auto before = remove(layer);
    if (before && (hadFocus || !hasMovedOn(*before)))
        giveFocusBack(*before);
}

void WindowLayers::forget(Layer &layer)
{
    const auto before = remove(layer);
    if (!before)
        return;
    const auto giveBack = [this, before] {
        if (!hasMovedOn(*before))
            giveFocusBack(*before);
    };
    QMetaObject::invokeMethod(this, giveBack, Qt::QueuedConnection);
}

std::optional<WindowLayers::FocusPath> WindowLayers::remove(const Layer &layer)
{
    const auto entry =
        std::ranges::find(m_open, &layer, [](const Entry &each) { return each.layer; });
    if (entry == m_open.end())
        return std::nullopt;
    FocusPath before = entry->before;
    const auto above = m_open.erase(entry);
    if (above == m_open.end())
        return before;
    // The layer above opened while this one had the focus, so the focus returns to where this layer had it from.
    above->before = before;
    return std::nullopt;
}

void WindowLayers::requestCloseAll()
{
    // Closing a layer may close others too, so the topmost one is determined anew each time.
    for (auto *layer = top(); layer && layer->kind() == Layer::Kind::Transient; layer = top()) {
        Q_EMIT layer->closeRequested();
        if (top() == layer)
            return;
    }
}

Layer *WindowLayers::top() const
{
    return m_open.empty() ? nullptr : m_open.back().layer;
}

bool WindowLayers::isTyping() const
{
    const auto *item = m_window->activeFocusItem();
    // A text that can only be read and selected does not accept an input method.
    return item && item->flags().testFlag(QQuickItem::ItemAcceptsInputMethod);
}

WindowLayers::FocusPath WindowLayers::focusPath() const
{
    FocusPath path;
    for (auto *item = m_window->activeFocusItem(); item; item = item->parentItem())
        path.append(item);
    return path;
}

bool WindowLayers::hasMovedOn(const FocusPath &before) const
{
    const auto *now = m_window->activeFocusItem();
    if (!now || before.isEmpty())
        return false;
    // A popup that closes leaves the focus to a focus scope around the former focus item, if to any item.
    return now == before.constFirst() || !now->isAncestorOf(before.constFirst());
}

void WindowLayers::giveFocusBack(const FocusPath &before)
{
    // The former focus item may be gone, or be removed from the window before it is destroyed. In that case the
    // surrounding focus scope gives the focus to the item that replaces it.
    const auto left = std::ranges::find_if(before, [&](const QPointer<QQuickItem> &item) {
        return item && item->window() == m_window && item->isVisible() && item->isEnabled() &&
               (item == before.constFirst() || item->isFocusScope());
    });
    if (left != before.end())
        (*left)->forceActiveFocus(Qt::PopupFocusReason);
    else if (auto *layer = top())
        layer->item()->forceActiveFocus(Qt::PopupFocusReason);
    else if (auto *item = m_window->activeFocusItem())
        item->setFocus(false);
}

bool WindowLayers::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_window)
        return false;
    if (m_shortcuts)
        m_shortcuts->observe(*event);
    for (const auto &handler : handlers()) {
        if (handler)
            handler->observe(*event);
    }
    return event->type() == QEvent::KeyPress && takesPress(static_cast<const QKeyEvent &>(*event));
}

bool WindowLayers::takesPress(const QKeyEvent &press)
{
    if (press.isAutoRepeat())
        return takesRepetition(press);
    m_isHeldKeyConsumed = takesFirstPress(press);
    return m_isHeldKeyConsumed;
}

bool WindowLayers::takesFirstPress(const QKeyEvent &press)
{
    const QPointer<Layer> layer = top();
    if (layer && mustHoldFocus(*layer) && !layer->hasFocus())
        layer->item()->forceActiveFocus(Qt::PopupFocusReason);
    for (const auto &handler : handlers()) {
        if (handler && handler->takes(press))
            return true;
    }
    const bool isRequired = layer && layer->kind() == Layer::Kind::Required;
    if (!isRequired && m_shortcuts && m_shortcuts->takes(press))
        return true;
    if (!layer || !layer->closesOnEscape() || press.key() != Qt::Key_Escape)
        return false;
    Q_EMIT layer->closeRequested();
    return true;
}

bool WindowLayers::takesRepetition(const QKeyEvent &press)
{
    for (const auto &handler : handlers()) {
        if (handler && handler->repeats(press) && handler->takes(press))
            return true;
    }
    if (m_isHeldKeyConsumed || press.key() == Qt::Key_Escape)
        return true;
    if (isMovement(press))
        return false;
    const bool isLineBreak = press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter;
    return !isTyping() || (isLineBreak && !isMultiLine(*m_window->activeFocusItem()));
}
