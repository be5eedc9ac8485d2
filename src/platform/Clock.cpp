#include "platform/Clock.h"

#include "model/Failure.h"

#include <QTimer>

#include <coroutine>

namespace {

class EventLoopTimer final : public Clock::Timer
{
public:
    EventLoopTimer(std::chrono::milliseconds interval, bool isSingleShot,
                   std::function<void()> callback)
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        m_timer.setSingleShot(isSingleShot);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, std::move(callback));
        m_timer.start(interval);
    }

private:
    QTimer m_timer;
};

/// Suspends the coroutine until the clock or the stop token resumes it, whichever happens first.
class Sleep
{
public:
    Sleep(Clock &clock, std::chrono::milliseconds duration, std::stop_token stop)
        : m_clock(clock), m_duration(duration), m_stop(std::move(stop))
    {
    }

    bool await_ready() const { return m_stop.stop_requested(); }

    void await_suspend(std::coroutine_handle<> waiting)
    {
        m_waiting = waiting;
        m_timer = m_clock.after(m_duration, [this] { wake(); });
        m_onStop.emplace(m_stop, [this] { wake(); });
    }

    void await_resume() const
    {
        if (m_stop.stop_requested())
            throw Cancelled();
    }

private:
    void wake()
    {
        // Resuming the coroutine may destroy the timer, the stop callback and this object itself.
        if (const auto waiting = std::exchange(m_waiting, nullptr))
            waiting.resume();
    }

    Clock &m_clock;
    std::chrono::milliseconds m_duration;
    std::stop_token m_stop;
    std::coroutine_handle<> m_waiting;
    Clock::TimerHandle m_timer;
    std::optional<std::stop_callback<std::function<void()>>> m_onStop;
};

} // namespace

QCoro::Task<> Clock::sleep(std::chrono::milliseconds duration, std::stop_token stop)
{
    co_await Sleep(*this, duration, std::move(stop));
}

QDateTime SystemClock::now() const
{
    return QDateTime::currentDateTimeUtc();
}

Clock::TimerHandle SystemClock::after(std::chrono::milliseconds delay,
                                      std::function<void()> callback)
{
    return std::make_unique<EventLoopTimer>(delay, true, std::move(callback));
}

Clock::TimerHandle SystemClock::every(std::chrono::milliseconds period,
                                      std::function<void()> callback)
{
    return std::make_unique<EventLoopTimer>(period, false, std::move(callback));
}
