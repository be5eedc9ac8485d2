#pragma once

#include "FrameWatch.h"

#include <functional>
#include <vector>

/// Times what a window makes of input events, one event at a time.
class FrameTimer
{
public:
    /// About a row and a half of a list: 3,600 pixels in a second.
    static constexpr int PixelsPerStep = 60;

    explicit FrameTimer(QQuickWindow &window);

    const QString &renderer() const { return m_watch.renderer(); }
    /// Lets the window come to rest: no frame for a twentieth of a second. Waits for a second at most.
    void settle();
    /// Presses and releases a key in the window at rest. Gives the nanoseconds from the press to the swap of the first
    /// frame that shows what it did; ends the program when there is none within a second.
    qint64 press(Qt::Key key, const QString &text);
    /// The same from any act that changes what the window shows.
    qint64 answer(const std::function<void()> &act);
    /// Scrolls down by `PixelsPerStep` each sixtieth of a second. Gives the nanoseconds from each step to the swap of the
    /// next frame, without the steps that no frame had shown when the next step came: those were dropped.
    std::vector<qint64> scroll(int steps);

private:
    void scrollBy(int pixels, Qt::ScrollPhase phase);

    QQuickWindow &m_window;
    /// The next frame to take over the items' state is the answer to the last event.
    bool m_isArmed = false;
    FrameWatch m_watch;
};
