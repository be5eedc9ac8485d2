#pragma once

#include <QObject>
#include <QQuickWindow>

#include <functional>

/// The instant in nanoseconds on the clock that Python's `time.monotonic_ns` reads too.
qint64 monotonicNow();

/// Tells when the frames of a window have been handed to the display, whichever thread draws them.
class FrameWatch : public QObject
{
    Q_OBJECT

public:
    /// `counts` is asked while a frame takes over the state of the items, with the UI thread standing still.
    FrameWatch(QQuickWindow &window, std::function<bool()> counts);

    /// Who draws and on which thread, e.g. "software, basic loop". Known once a frame has been drawn.
    const QString &renderer() const { return m_renderer; }

Q_SIGNALS:
    /// A frame was swapped at this instant; `isCounted` is what `counts` said of it. Sent from the drawing thread.
    void swapped(qint64 instant, bool isCounted);

private:
    void describe(const QQuickWindow &window);

    std::function<bool()> m_counts;
    bool m_isCounted = false;
    QString m_renderer;
};
