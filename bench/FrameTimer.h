#pragma once

#include "FrameWatch.h"

#include <functional>
#include <vector>

/// Times what a window makes of input events, one event at a time.
class FrameTimer
{
public:
    explicit FrameTimer(QQuickWindow &window);

    const QString &renderer() const { return m_watch.renderer(); }
    /// Lets the window come to rest: no frame for a twentieth of a second. Waits for a second at most.
    void settle();
    /// Presses and releases a key in the window at rest. Gives the nanoseconds from the press to the swap of the first
    /// frame that shows what it did; ends the program when there is none within a second.
    qint64 press(Qt::Key key, const QString &text);
    /// The same from any act that changes what the window shows.
    qint64 answer(const std::function<void()> &act);
    /// Turns the wheel downwards by one notch each sixtieth of a second. Gives the nanoseconds between the frames.
    std::vector<qint64> scroll(int notches);

private:
    QQuickWindow &m_window;
    /// The next frame to take over the items' state is the answer to the last event.
    bool m_isArmed = false;
    FrameWatch m_watch;
};
