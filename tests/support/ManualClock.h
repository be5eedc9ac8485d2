#pragma once

#include "platform/Clock.h"

#include <list>

/// A clock that advances only when a test advances it.
class ManualClock final : public Clock
{
public:
    explicit ManualClock(QDateTime now) : m_now(std::move(now)) {}
    /// Starts on Thursday, 29 October 2026, 14:32 in Paris.
    ManualClock();

    QDateTime now() const override { return m_now; }
    TimerHandle after(std::chrono::milliseconds delay, std::function<void()> callback) override;
    TimerHandle every(std::chrono::milliseconds period, std::function<void()> callback) override;

    /// Advances the time and calls the timers that become due, in order of their times; timers due at the same time are
    /// called in the order in which they were started.
    void advance(std::chrono::milliseconds duration);
    /// The number of pending timers.
    int pending() const { return int(m_timers.size()); }

private:
    struct Entry;
    class Handle;

    TimerHandle add(std::chrono::milliseconds delay, std::chrono::milliseconds period,
                    std::function<void()> callback);

    QDateTime m_now;
    std::list<std::shared_ptr<Entry>> m_timers;
};
