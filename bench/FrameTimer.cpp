#include "FrameTimer.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QTimer>

#include <optional>

using namespace std::chrono_literals;

FrameTimer::FrameTimer(QQuickWindow &window)
    : m_window(window), m_watch(window, [this] { return std::exchange(m_isArmed, false); })
{
    // A display without a window manager activates no window, and then nothing in it has the keyboard's focus.
    QFocusEvent focus(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    QCoreApplication::sendEvent(&m_window, &focus);
}

void FrameTimer::settle()
{
    QEventLoop loop;
    QTimer quiet;
    quiet.setTimerType(Qt::PreciseTimer);
    QObject::connect(&quiet, &QTimer::timeout, &loop, &QEventLoop::quit);
    QObject::connect(&m_watch, &FrameWatch::swapped, &quiet, [&quiet] { quiet.start(); });
    quiet.start(50ms);
    // A window that never rests is measured as it is.
    QTimer::singleShot(1s, &loop, &QEventLoop::quit);
    loop.exec();
}

qint64 FrameTimer::press(Qt::Key key, const QString &text)
{
    return answer([&] {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(&m_window, &press);
        QCoreApplication::sendEvent(&m_window, &release);
    });
}

qint64 FrameTimer::answer(const std::function<void()> &act)
{
    settle();
    QEventLoop loop;
    qint64 end = 0;
    const auto onFrame = [&](qint64 instant, bool isAnswer) {
        if (!isAnswer)
            return;
        end = instant;
        loop.quit();
    };
    QObject::connect(&m_watch, &FrameWatch::swapped, &loop, onFrame);
    QTimer::singleShot(2s, &loop, [] { qFatal("An act led to no frame."); });
    const auto start = monotonicNow();
    act();
    m_isArmed = true;
    loop.exec();
    return end - start;
}

std::vector<qint64> FrameTimer::scroll(int steps)
{
    settle();
    QEventLoop loop;
    std::vector<qint64> times;
    std::optional<qint64> begun;
    QObject::connect(&m_watch, &FrameWatch::swapped, &loop, [&](qint64 instant) {
        if (begun)
            times.push_back(instant - *std::exchange(begun, std::nullopt));
    });
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    const auto turn = [&] {
        if (--steps < 0)
            return loop.quit();
        begun = monotonicNow();
        scrollBy(PixelsPerStep, Qt::ScrollUpdate);
    };
    scrollBy(0, Qt::ScrollBegin);
    QObject::connect(&timer, &QTimer::timeout, &loop, turn);
    timer.start(16ms);
    loop.exec();
    scrollBy(0, Qt::ScrollEnd);
    return times;
}

// As a touchpad does it: each notch of a wheel would begin a glide anew, and how many of those are seen before the next
// one hangs on chance.
void FrameTimer::scrollBy(int pixels, Qt::ScrollPhase phase)
{
    const QPointF middle(m_window.width() * 0.6, m_window.height() * 0.5);
    QWheelEvent event(middle, m_window.mapToGlobal(middle), {0, -pixels}, {0, -pixels},
                      Qt::NoButton, Qt::NoModifier, phase, false,
                      Qt::MouseEventSynthesizedBySystem);
    event.setTimestamp(quint64(monotonicNow() / 1'000'000));
    QCoreApplication::sendEvent(&m_window, &event);
}
