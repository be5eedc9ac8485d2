#pragma once

#include <QQuickItem>

#include <optional>

/// An item that takes the presses of the pointer itself. Press handlers of Qt Quick would also receive presses that an
/// item above has accepted, so that a drag on a popover would move what is below it.
///
/// A press that loses the grab, is joined by a second button, or belongs to a double click that began on another item
/// has no effect. A mouse keeps the press when it moves inside a `Flickable`; a finger scrolls.
class PressArea : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    /// The pointer is over the item.
    Q_PROPERTY(bool isHovered READ isHovered NOTIFY hoverChanged FINAL)
    /// The left button or a finger is down on the item, and a release would be a click.
    Q_PROPERTY(bool isPressed READ isPressed NOTIFY pressedChanged FINAL)
    /// A mouse can drag the item. False at first.
    Q_PROPERTY(bool isDraggable READ isDraggable WRITE setDraggable NOTIFY draggableChanged FINAL)
    /// The item is being dragged: the press has moved further than the drag distance of the system.
    Q_PROPERTY(bool isDragging READ isDragging NOTIFY draggingChanged FINAL)
    /// The buttons whose presses the item takes; at first the left and the right one. Other presses pass to the item
    /// below.
    Q_PROPERTY(Qt::MouseButtons acceptedButtons READ acceptedMouseButtons WRITE setAcceptedButtons
                   NOTIFY acceptedButtonsChanged FINAL)

public:
    explicit PressArea(QQuickItem *parent = nullptr);

    bool isHovered() const { return m_isHovered; }
    bool isPressed() const { return m_isPressed; }
    bool isDraggable() const { return m_isDraggable; }
    void setDraggable(bool isDraggable);
    bool isDragging() const { return m_isDragging; }
    void setAcceptedButtons(Qt::MouseButtons buttons);

    /// Ends the press or the drag without a click, and gives up the grab. For a drag and drop of the desktop, which
    /// does not deliver the release.
    Q_INVOKABLE void cancel();

Q_SIGNALS:
    void hoverChanged();
    void pressedChanged();
    void draggableChanged();
    void draggingChanged();
    void acceptedButtonsChanged();
    /// A click of the left button. The position is that of the release, in the coordinates of the item; the modifiers
    /// are `Qt::KeyboardModifiers`.
    void clicked(QPointF position, int modifiers);
    /// A click of the right button, at a position in the coordinates of the item.
    void menuRequested(double x, double y);
    void dragBegun();

protected:
    /// Emits `clicked`. Both positions are inside the item.
    virtual void takeClick(QPointF pressed, QPointF released, Qt::KeyboardModifiers modifiers);
    /// Called when a press begins, and when it moves.
    virtual void followPress(QPointF /*position*/) {}
    /// The position at which the present press began.
    QPointF pressStart() const { return m_start; }
    /// What the item stands for has changed: a press that began before has no effect, and the next press is the first
    /// of a double click.
    void forgetPress();
    virtual void setHovered(bool isHovered);

    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void hoverEnterEvent(QHoverEvent *event) override;
    void hoverLeaveEvent(QHoverEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseUngrabEvent() override;

private:
    void leaveRest(const QMouseEvent &event);
    void endPress();
    void setPressed(bool isPressed);
    void setDragging(bool isDragging);

    /// The button that is down; none after a press that was cancelled.
    Qt::MouseButton m_button = Qt::NoButton;
    QPointF m_start;
    QPointF m_sceneStart;
    /// The times of the latest press and the one before, in milliseconds of the event clock.
    std::optional<quint64> m_latestPress;
    std::optional<quint64> m_earlierPress;
    bool m_isHovered = false;
    bool m_isPressed = false;
    bool m_isDraggable = false;
    bool m_isDragging = false;
};
