#include "screens/kit/controls/PressArea.h"

#include <QGuiApplication>
#include <QStyleHints>

namespace {

/// False for a finger, whose events Qt Quick converts into mouse events.
bool isFromMouse(const QMouseEvent &event)
{
    const auto type = event.device()->type();
    return type == QInputDevice::DeviceType::Mouse || type == QInputDevice::DeviceType::TouchPad;
}

} // namespace

PressArea::PressArea(QQuickItem *parent) : QQuickItem(parent)
{
    setAcceptHoverEvents(true);
    setAcceptedMouseButtons(Qt::LeftButton | Qt::RightButton);
}

void PressArea::setDraggable(bool isDraggable)
{
    if (std::exchange(m_isDraggable, isDraggable) != isDraggable)
        Q_EMIT draggableChanged();
}

void PressArea::setAcceptedButtons(Qt::MouseButtons buttons)
{
    if (acceptedMouseButtons() == buttons)
        return;
    setAcceptedMouseButtons(buttons);
    Q_EMIT acceptedButtonsChanged();
}

void PressArea::cancel()
{
    endPress();
    ungrabMouse();
}

void PressArea::forgetPress()
{
    m_latestPress.reset();
    endPress();
}

void PressArea::takeClick(QPointF, QPointF released, Qt::KeyboardModifiers modifiers)
{
    Q_EMIT clicked(released, modifiers.toInt());
}

void PressArea::setHovered(bool isHovered)
{
    if (std::exchange(m_isHovered, isHovered) != isHovered)
        Q_EMIT hoverChanged();
}

void PressArea::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    // An item that is kept for reuse receives no leave event from the pointer.
    if (change == ItemVisibleHasChanged && !data.boolValue)
        setHovered(false);
}

void PressArea::hoverEnterEvent(QHoverEvent *event)
{
    QQuickItem::hoverEnterEvent(event);
    setHovered(true);
}

void PressArea::hoverLeaveEvent(QHoverEvent *event)
{
    QQuickItem::hoverLeaveEvent(event);
    setHovered(false);
}

void PressArea::mousePressEvent(QMouseEvent *event)
{
    if (event->buttons() != event->button()) {
        endPress();
        return;
    }
    m_button = event->button();
    m_start = event->position();
    m_sceneStart = event->scenePosition();
    m_earlierPress = std::exchange(m_latestPress, event->timestamp());
    setKeepMouseGrab(isFromMouse(*event));
    followPress(m_start);
    setPressed(m_button == Qt::LeftButton);
}

void PressArea::mouseMoveEvent(QMouseEvent *event)
{
    if (m_button == Qt::NoButton)
        return;
    followPress(event->position());
    setPressed(m_button == Qt::LeftButton && !m_isDragging && contains(event->position()));
    const QPointF way = event->scenePosition() - m_sceneStart;
    if (way.manhattanLength() >= QGuiApplication::styleHints()->startDragDistance())
        leaveRest(*event);
}

/// The press has moved too far for a finger's tap, and far enough for a drag.
void PressArea::leaveRest(const QMouseEvent &event)
{
    if (!isFromMouse(event)) {
        endPress();
    } else if (m_isDraggable && m_button == Qt::LeftButton && !m_isDragging) {
        setPressed(false);
        setDragging(true);
        Q_EMIT dragBegun();
    }
}

void PressArea::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != m_button)
        return;
    const bool isClick = !m_isDragging && contains(event->position());
    endPress();
    if (!isClick)
        return;
    if (event->button() == Qt::RightButton)
        Q_EMIT menuRequested(event->position().x(), event->position().y());
    else
        takeClick(m_start, event->position(), event->modifiers());
}

/// The second press of a double click, after `mousePressEvent`. If the first click made another item take the place of
/// the clicked one, the second must not act on that item.
void PressArea::mouseDoubleClickEvent(QMouseEvent *)
{
    const auto interval = quint64(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    if (!m_latestPress || !m_earlierPress || *m_latestPress - *m_earlierPress > interval)
        endPress();
}

void PressArea::mouseUngrabEvent()
{
    endPress();
}

void PressArea::endPress()
{
    m_button = Qt::NoButton;
    setPressed(false);
    setDragging(false);
}

void PressArea::setPressed(bool isPressed)
{
    if (std::exchange(m_isPressed, isPressed) != isPressed)
        Q_EMIT pressedChanged();
}

void PressArea::setDragging(bool isDragging)
{
    if (std::exchange(m_isDragging, isDragging) != isDragging)
        Q_EMIT draggingChanged();
}
