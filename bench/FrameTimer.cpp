#include "FrameTimer.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QTimer>

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

std::vector<qint64> FrameTimer::scroll(int notches)
{
    settle();
    QEventLoop loop;
    std::vector<qint64> instants;
    QObject::connect(&m_watch, &FrameWatch::swapped, &loop,
                     [&instants](qint64 instant) { instants.push_back(instant); });
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    const QPointF middle(m_window.width() * 0.6, m_window.height() * 0.5);
    const auto turn = [&] {
        QWheelEvent notch(middle, m_window.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        notch.setTimestamp(quint64(monotonicNow() / 1'000'000));
        QCoreApplication::sendEvent(&m_window, &notch);
        if (--notches == 0)
            loop.quit();
    };
    QObject::connect(&timer, &QTimer::timeout, &loop, turn);
    timer.start(16ms);
    loop.exec();
    std::vector<qint64> gaps;
    for (std::size_t i = 1; i < instants.size(); ++i)
        gaps.push_back(instants[i] - instants[i - 1]);
    return gaps;
}
