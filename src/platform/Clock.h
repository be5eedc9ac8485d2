#pragma once

#include <QCoro/QCoroTask>
#include <QDateTime>

#include <chrono>
#include <functional>
#include <memory>
#include <stop_token>

/// Time, as it comes in from outside: tests turn it by hand. UI thread only.
class Clock
{
public:
    /// A pending call; destroying it calls it off.
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

    /// The present instant, in UTC.
    virtual QDateTime now() const = 0;
    /// Calls `callback` once, after `delay`, unless the handle is destroyed before.
    [[nodiscard]] virtual TimerHandle after(std::chrono::milliseconds delay,
                                            std::function<void()> callback) = 0;
    /// Calls `callback` each time `period` has gone by, until the handle is destroyed.
    [[nodiscard]] virtual TimerHandle every(std::chrono::milliseconds period,
                                            std::function<void()> callback) = 0;

    /// Waits. A requested stop ends the wait at once with `Cancelled`.
    QCoro::Task<> sleep(std::chrono::milliseconds duration, std::stop_token stop = {});
};

/// The machine's own clock.
class SystemClock final : public Clock
{
public:
    QDateTime now() const override;
    TimerHandle after(std::chrono::milliseconds delay, std::function<void()> callback) override;
    TimerHandle every(std::chrono::milliseconds period, std::function<void()> callback) override;
};
