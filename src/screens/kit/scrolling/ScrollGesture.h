#pragma once

#include <QPointF>
#include <QPointer>
#include <QQuickItem>

/// The turns of the wheel that belong together, because they follow each other closely at one place. All of them scroll
/// the view that took the first one, so that a list at its end does not pass the rest to the view around it.
class ScrollGesture
{
public:
    /// The pause, in milliseconds, after which a further turn begins another gesture.
    static constexpr quint64 Pause = 400;

    /// Whether a turn belongs to a gesture of a view around this one. `time` is in milliseconds.
    bool belongsToOuter(const QQuickItem &view, QPointF place, quint64 time) const
    {
        return isGoingOn(place, time) && m_view && m_view->isAncestorOf(&view);
    }
    /// Whether a turn belongs to a gesture of this view.
    bool belongsTo(const QQuickItem &view, QPointF place, quint64 time) const
    {
        return isGoingOn(place, time) && m_view == &view;
    }
    void take(QQuickItem &view, QPointF place, quint64 time)
    {
        m_view = &view;
        m_place = place;
        m_time = time;
    }

private:
    bool isGoingOn(QPointF place, quint64 time) const
    {
        return (place - m_place).manhattanLength() < 4 && time >= m_time && time - m_time < Pause;
    }

    QPointer<QQuickItem> m_view;
    QPointF m_place;
    quint64 m_time = 0;
};
