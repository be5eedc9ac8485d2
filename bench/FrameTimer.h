#pragma once

#include "FrameWatch.h"

#include <chrono>
#include <deque>
#include <functional>
#include <optional>
#include <vector>

/// Times what a window makes of input events, one event at a time.
class FrameTimer
{
public:
    /// About a row and a half of a list: 3,600 pixels in a second.
    static constexpr int PixelsPerStep = 60;
    /// From one step of a scroll to the next: about a frame of a display of 60 Hz.
    static constexpr std::chrono::milliseconds Interval{16};

    explicit FrameTimer(QQuickWindow &window);

    const QString &renderer() const { return m_watch.renderer(); }
    /// Lets the window come to rest: no frame for a twentieth of a second. Waits for a second at most.
    void settle();
    /// Presses and releases a key in the window at rest. Gives the nanoseconds from the press to the swap of the first
    /// frame that shows what it did; ends the program when there is none within a second.
    qint64 press(Qt::Key key, const QString &text);
    /// The same from any act that changes what the window shows.
    qint64 answer(const std::function<void()> &act);
    /// What a scroll looked like.
    struct Scroll
    {
        /// Nanoseconds from each step to the swap of the first frame that shows it, without the steps that no frame
        /// showed by themselves.
        std::vector<qint64> times;
        /// How many intervals of the display brought no new frame between the first frame and the last.
        qint64 dropped = 0;
    };
    /// Scrolls down by `PixelsPerStep` in each `Interval`.
    Scroll scroll(int steps);

private:
    void scrollBy(int pixels, Qt::ScrollPhase phase);
    /// A frame takes over the state of the items, and with it the event that waits for a frame; false when none does.
    bool takeOver();
    /// When the event was that the next frame to be swapped answers.
    qint64 nextTaken();

    QQuickWindow &m_window;
    /// When the last event was, until a frame takes it over.
    std::optional<qint64> m_waiting;
    /// The events taken over by frames that are not known to be swapped. Frames are taken over while this thread stands
    /// still, so both threads may write here.
    std::deque<qint64> m_taken;
    FrameWatch m_watch;
};
