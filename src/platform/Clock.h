#pragma once

#include <QCoro/QCoroTask>
#include <QDateTime>

#include <chrono>
#include <functional>
#include <memory>
#include <stop_token>

/// The source of time and timers. Tests replace it by a clock that they advance themselves. UI thread only.
class Clock
{
public:
    /// A scheduled call. Destroying the timer cancels it.
    class Timer
    {
    public:
        Timer() = default;
        virtual ~Timer() = default;
        Timer(const Timer &) = delete;
        Timer &operator=(const Timer &) = delete;
    };
    using TimerHandle = std::unique_ptr<Timer>;

    Clock() = default;
    virtual ~Clock() = default;
    Clock(const Clock &) = delete;
    Clock &operator=(const Clock &) = delete;

    /// The current time in UTC.
    virtual QDateTime now() const = 0;
    /// Calls `callback` once after `delay`, unless the returned handle is destroyed before.
    [[nodiscard]] virtual TimerHandle after(std::chrono::milliseconds delay,
                                            std::function<void()> callback) = 0;
    /// Calls `callback` repeatedly, each time `period` has elapsed, until the returned handle is destroyed.
    [[nodiscard]] virtual TimerHandle every(std::chrono::milliseconds period,
                                            std::function<void()> callback) = 0;

    /// Waits for `duration`. A requested stop ends the wait immediately with `Cancelled`.
    QCoro::Task<> sleep(std::chrono::milliseconds duration, std::stop_token stop = {});
};

/// The clock of the machine.
class SystemClock final : public Clock
{
public:
    QDateTime now() const override;
    TimerHandle after(std::chrono::milliseconds delay, std::function<void()> callback) override;
    TimerHandle every(std::chrono::milliseconds period, std::function<void()> callback) override;
};
