#pragma once

#include <QObject>
#include <QQuickWindow>

#include <functional>

/// The time in nanoseconds on the same clock as Python's `time.monotonic_ns`.
qint64 monotonicNow();

/// Reports when the frames of a window were passed to the display, whichever thread draws them.
class SwapWatch : public QObject
{
    Q_OBJECT

public:
    /// `counts` is called while a frame copies the state of the items; the UI thread is blocked during the call.
    SwapWatch(QQuickWindow &window, std::function<bool()> counts);

    /// The renderer and its render loop, e.g. "software, basic loop". Known once a frame was drawn.
    const QString &renderer() const { return m_renderer; }

Q_SIGNALS:
    /// A frame was swapped at the time `instant`; `isCounted` is the result of `counts` for this frame. Emitted by the
    /// thread that draws.
    void swapped(qint64 instant, bool isCounted);

private:
    void describe(const QQuickWindow &window);

    std::function<bool()> m_counts;
    bool m_isCounted = false;
    QString m_renderer;
};
