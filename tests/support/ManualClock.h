#pragma once

#include "platform/Clock.h"

#include <list>

/// A clock that stands still until a test turns it.
class ManualClock final : public Clock
{
public:
    explicit ManualClock(QDateTime now) : m_now(std::move(now)) {}
    /// Stands at 29 October 2026, 14:32 in Paris, a Thursday.
    ManualClock();

    QDateTime now() const override { return m_now; }
    TimerHandle after(std::chrono::milliseconds delay, std::function<void()> callback) override;
    TimerHandle every(std::chrono::milliseconds period, std::function<void()> callback) override;

    /// Moves time on, firing what falls due on the way, in order of time; equal times in order of asking.
    void advance(std::chrono::milliseconds duration);
    /// How many timers are pending.
    int pending() const { return int(m_timers.size()); }

private:
    struct Entry;
    class Handle;

    TimerHandle add(std::chrono::milliseconds delay, std::chrono::milliseconds period,
                    std::function<void()> callback);

    QDateTime m_now;
    std::list<std::shared_ptr<Entry>> m_timers;
};
