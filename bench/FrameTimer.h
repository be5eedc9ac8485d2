#pragma once

#include "SwapWatch.h"

#include <chrono>
#include <deque>
#include <functional>
#include <optional>
#include <vector>

/// Measures how a window responds to input events, one event at a time.
class FrameTimer
{
public:
    /// The distance of one step in pixels, about one and a half rows of a list. The speed is about 3,600 pixels per
    /// second.
    static constexpr int PixelsPerStep = 60;
    /// The time between two steps of a scroll, about one frame of a display with 60 Hz.
    static constexpr std::chrono::milliseconds Interval{16};

    explicit FrameTimer(QQuickWindow &window);

    const QString &renderer() const { return m_watch.renderer(); }
    /// Waits until the window has drawn no frame for 50 ms, but at most one second.
    void settle();
    /// Presses and releases a key while the window is idle. Returns the nanoseconds from the press to the swap of the
    /// first frame that shows the result. Ends the program if there is no such frame within one second.
    qint64 press(Qt::Key key, const QString &text);
    /// Presses and releases a key, without waiting for anything.
    void send(Qt::Key key, const QString &text);
    /// Presses a key that does what is given.
    qint64 press(const std::function<void()> &act);
    /// The same as `press` for any action that changes what the window displays, without a key.
    qint64 answer(const std::function<void()> &act);
    /// The measurements of a scroll.
    struct Scroll
    {
        /// The nanoseconds from each step to the swap of the first frame that shows it. Steps that were displayed only
        /// together with a later one are not included.
        std::vector<qint64> times;
        /// The number of display intervals without a new frame, between the first frame and the last.
        qint64 dropped = 0;
    };
    /// Scrolls down by `PixelsPerStep` in each `Interval`.
    Scroll scroll(int steps);

private:
    void scrollBy(int pixels, Qt::ScrollPhase phase);
    /// Called when a frame copies the state of the items. Assigns the waiting event to this frame; false if none is
    /// waiting.
    bool takeOver();
    /// The time of the event that the next swapped frame displays.
    qint64 nextTaken();

    QQuickWindow &m_window;
    /// The time of the latest event, until it is assigned to a frame.
    std::optional<qint64> m_waiting;
    /// The times of the events assigned to frames whose swap was not reported yet. Both threads may write it, because
    /// this thread is blocked while a frame copies the state of the items.
    std::deque<qint64> m_taken;
    SwapWatch m_watch;
};
