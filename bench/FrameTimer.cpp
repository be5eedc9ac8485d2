#include "FrameTimer.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QTimer>

#include <algorithm>
#include <cmath>

using namespace std::chrono_literals;

namespace {

/// The number of display intervals that is closest to a duration.
qint64 intervals(qint64 nanoseconds)
{
    return std::llround(double(nanoseconds) /
                        double(std::chrono::nanoseconds(FrameTimer::Interval).count()));
}

/// Does something when a key is pressed in a window.
class KeyHandler final : public QObject
{
public:
    KeyHandler(QQuickWindow &window, const std::function<void()> &act) : m_act(act)
    {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress)
            return QObject::eventFilter(watched, event);
        m_act();
        return true;
    }

private:
    const std::function<void()> &m_act;
};

} // namespace

FrameTimer::FrameTimer(QQuickWindow &window)
    : m_window(window), m_watch(window, [this] { return takeOver(); })
{
    // Without a window manager, the display activates no window, so no item in it would have the keyboard focus.
    QFocusEvent focus(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    QCoreApplication::sendEvent(&m_window, &focus);
}

void FrameTimer::settle()
{
    QEventLoop loop;
    QTimer quiet;
    quiet.setTimerType(Qt::PreciseTimer);
    QObject::connect(&quiet, &QTimer::timeout, &loop, &QEventLoop::quit);
    QObject::connect(&m_watch, &SwapWatch::swapped, &quiet, [&quiet] { quiet.start(); });
    quiet.start(50ms);
    // A window that never stops drawing is measured anyway.
    QTimer::singleShot(1s, &loop, &QEventLoop::quit);
    loop.exec();
}

qint64 FrameTimer::press(Qt::Key key, const QString &text)
{
    return answer([&] { send(key, text); });
}

void FrameTimer::send(Qt::Key key, const QString &text)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&m_window, &press);
    QCoreApplication::sendEvent(&m_window, &release);
}

qint64 FrameTimer::press(const std::function<void()> &act)
{
    const KeyHandler handler(m_window, act);
    return press(Qt::Key_F35, {});
}

qint64 FrameTimer::answer(const std::function<void()> &act)
{
    settle();
    QEventLoop loop;
    qint64 time = 0;
    const auto onFrame = [&](qint64 instant, bool isAnswer) {
        if (!isAnswer)
            return;
        time = instant - nextTaken();
        loop.quit();
    };
    QObject::connect(&m_watch, &SwapWatch::swapped, &loop, onFrame);
    QTimer::singleShot(2s, &loop, [] { qFatal("An act led to no frame."); });
    const auto start = monotonicNow();
    act();
    m_waiting = start;
    loop.exec();
    return time;
}

FrameTimer::Scroll FrameTimer::scroll(int steps)
{
    settle();
    QEventLoop loop;
    Scroll scroll;
    qint64 last = 0;
    QObject::connect(&m_watch, &SwapWatch::swapped, &loop, [&](qint64 instant, bool isAnswer) {
        if (!isAnswer)
            return;
        if (last != 0)
            scroll.dropped += std::max<qint64>(intervals(instant - last) - 1, 0);
        last = instant;
        scroll.times.push_back(instant - nextTaken());
    });
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    const auto turn = [&] {
        if (--steps < 0)
            return loop.quit();
        m_waiting = monotonicNow();
        scrollBy(PixelsPerStep, Qt::ScrollUpdate);
    };
    scrollBy(0, Qt::ScrollBegin);
    QObject::connect(&timer, &QTimer::timeout, &loop, turn);
    timer.start(Interval);
    loop.exec();
    scrollBy(0, Qt::ScrollEnd);
    settle();
    return scroll;
}

bool FrameTimer::takeOver()
{
    if (m_waiting)
        m_taken.push_back(*m_waiting);
    return std::exchange(m_waiting, std::nullopt).has_value();
}

qint64 FrameTimer::nextTaken()
{
    const auto begun = m_taken.front();
    m_taken.pop_front();
    return begun;
}

// Sends the events of a touchpad. Each notch of a mouse wheel would start a new animation, and the number of those that
// become visible before the next notch depends on chance.
void FrameTimer::scrollBy(int pixels, Qt::ScrollPhase phase)
{
    const QPointF middle(m_window.width() * 0.6, m_window.height() * 0.5);
    QWheelEvent event(middle, m_window.mapToGlobal(middle), {0, -pixels}, {0, -pixels},
                      Qt::NoButton, Qt::NoModifier, phase, false,
                      Qt::MouseEventSynthesizedBySystem);
    event.setTimestamp(quint64(monotonicNow() / 1'000'000));
    QCoreApplication::sendEvent(&m_window, &event);
}
