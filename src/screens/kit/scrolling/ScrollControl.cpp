#include "screens/kit/scrolling/ScrollControl.h"

#include "screens/kit/scrolling/ScrollGesture.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPointingDevice>
#include <QQuickWindow>
#include <QScopedValueRollback>
#include <QStyleHints>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace {

constexpr double AnglePerNotch = 120;
constexpr double UsualLines = 3;

/// There is one pointer, so there is one gesture at a time.
ScrollGesture &gesture()
{
    static ScrollGesture only;
    return only;
}

double along(QPointF delta, bool isHorizontal)
{
    return isHorizontal ? delta.x() : delta.y();
}

/// The delta of a turn of the wheel. Some systems leave it to programs to turn the wheel sideways with Shift.
QPointF turned(QPoint delta, const QWheelEvent &event)
{
    const bool isTurned = event.modifiers().testFlag(Qt::ShiftModifier) && delta.x() == 0;
    return isTurned ? QPointF(delta.y(), 0) : QPointF(delta);
}

bool isExact(const QWheelEvent &event)
{
    return !event.pixelDelta().isNull() ||
           event.device()->type() == QInputDevice::DeviceType::TouchPad;
}

/// In logical pixels; positive towards the start.
QPointF distanceOf(const QWheelEvent &event)
{
    if (!event.pixelDelta().isNull())
        return turned(event.pixelDelta(), event);
    const double lines = QGuiApplication::styleHints()->wheelScrollLines();
    return turned(event.angleDelta(), event) / AnglePerNotch * ScrollControl::NotchDistance *
           (lines / UsualLines);
}

} // namespace

void ScrollControl::setView(QQuickItem *view)
{
    if (m_view == view || !view)
        return;
    if (m_view) {
        m_view->removeEventFilter(this);
        m_view->disconnect(this);
    }
    m_view = view;
    m_view->setProperty("interactive", false);
    m_view->installEventFilter(this);
    connect(m_view, &QQuickItem::windowChanged, this, &ScrollControl::watchWindow);
    // The class is not public.
    connect(m_view, SIGNAL(contentXChanged()), this, SLOT(noteMove()));
    connect(m_view, SIGNAL(contentYChanged()), this, SLOT(noteMove()));
    watchWindow();
    Q_EMIT viewChanged();
}

void ScrollControl::watchWindow()
{
    if (m_window)
        m_window->removeEventFilter(this);
    m_window = m_view->window();
    if (m_window)
        m_window->installEventFilter(this);
}

bool ScrollControl::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_window)
        notePointer(*event);
    else if (event->type() == QEvent::Wheel)
        return takesWheel(static_cast<QWheelEvent &>(*event));
    else if (event->type() == QEvent::KeyPress)
        return takesKey(static_cast<const QKeyEvent &>(*event));
    return false;
}

/// Lets the fingers drag the content, and not the mouse.
void ScrollControl::notePointer(QEvent &event)
{
    if (event.type() == QEvent::TouchBegin)
        m_view->setProperty("interactive", true);
    else if (event.type() == QEvent::MouseButtonPress &&
             static_cast<QMouseEvent &>(event).device()->type() == QInputDevice::DeviceType::Mouse)
        m_view->setProperty("interactive", false);
}

bool ScrollControl::takesWheel(QWheelEvent &event)
{
    event.ignore();
    if (gesture().belongsToOuter(*m_view, event.globalPosition(), event.timestamp()))
        return true;
    const QPointF delta = distanceOf(event);
    double distance = -along(delta, m_isHorizontal);
    if (m_isHorizontal && distance == 0)
        distance = -delta.y();
    if (distance == 0)
        return true;
    const double from = m_eased.isAtRest() ? position() : m_eased.position();
    const bool canFollow = bounds().bounded(from + distance) != from;
    if (m_passesOn && !canFollow &&
        !gesture().belongsTo(*m_view, event.globalPosition(), event.timestamp()))
        return true;
    event.accept();
    gesture().take(*m_view, event.globalPosition(), event.timestamp());
    QMetaObject::invokeMethod(m_view, "cancelFlick");
    if (isExact(event)) {
        m_eased.stop();
        place(bounds().bounded(from + distance));
    } else {
        move(distance);
    }
    run();
    return true;
}

bool ScrollControl::takesKey(const QKeyEvent &event)
{
    const auto range = bounds();
    if ((event.modifiers() & ~Qt::KeypadModifier) || range.last <= range.first)
        return false;
    const double from = m_eased.isAtRest() ? position() : m_eased.target();
    double target = from;
    switch (event.key()) {
    case Qt::Key_PageUp:
        target -= pageLength();
        break;
    case Qt::Key_PageDown:
        target += pageLength();
        break;
    case Qt::Key_Home:
        target = range.first;
        break;
    case Qt::Key_End:
        target = range.last;
        break;
    default:
        return false;
    }
    m_eased.aim(target, position(), range);
    if (m_isReduced) {
        m_eased.stop();
        place(range.bounded(target));
    }
    run();
    return true;
}

void ScrollControl::scrollBy(double notches)
{
    move(notches * NotchDistance);
    run();
}

void ScrollControl::move(double distance)
{
    const double from = m_eased.isAtRest() ? position() : m_eased.position();
    m_eased.push(distance, from, bounds());
    if (m_isReduced) {
        m_eased.stop();
        place(bounds().bounded(from + distance));
    }
}

void ScrollControl::scrollTo(double share)
{
    const auto range = bounds();
    const double length =
        range.last - range.first + (m_isHorizontal ? m_view->width() : m_view->height());
    m_eased.stop();
    place(range.bounded(range.first + share * length));
    run();
}

double ScrollControl::position() const
{
    return m_view->property(m_isHorizontal ? "contentX" : "contentY").toDouble();
}

double ScrollControl::pageLength() const
{
    constexpr double Kept = 40;
    return (m_isHorizontal ? m_view->width() : m_view->height()) - Kept;
}

ScrollBounds ScrollControl::bounds() const
{
    const auto value = [this](const char *name) { return m_view->property(name).toDouble(); };
    ScrollBounds bounds;
    if (m_isHorizontal) {
        bounds.first = value("originX") - value("leftMargin");
        bounds.last =
            value("originX") + value("contentWidth") + value("rightMargin") - m_view->width();
    } else {
        bounds.first = value("originY") - value("topMargin");
        bounds.last =
            value("originY") + value("contentHeight") + value("bottomMargin") - m_view->height();
    }
    bounds.last = std::max(bounds.first, bounds.last);
    return bounds;
}

void ScrollControl::place(double position)
{
    const QScopedValueRollback placing(m_isPlacing, true);
    m_view->setProperty(m_isHorizontal ? "contentX" : "contentY", position);
    Q_EMIT scrolled();
}

/// Somebody else has moved the content: a drag of the scroll bar, or the view that follows its focused row.
void ScrollControl::noteMove()
{
    if (m_isPlacing)
        return;
    m_eased.stop();
    stop();
}

void ScrollControl::run()
{
    if (m_eased.isAtRest()) {
        stop();
        return;
    }
    Q_EMIT scrolled();
    if (state() != Running) {
        m_lastTime = 0;
        start();
    }
}

void ScrollControl::updateCurrentTime(int time)
{
    const int passed = time - std::exchange(m_lastTime, time);
    if (!m_view || m_eased.isAtRest() || passed <= 0)
        return;
    m_eased.advance(passed, bounds());
    place(m_eased.position());
    if (m_eased.isAtRest())
        stop();
}
