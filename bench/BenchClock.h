#pragma once

#include "platform/Clock.h"

/// A clock that returns the current time but has no delays: waits end in the next iteration of the event loop, and
/// repeating timers never fire.
class BenchClock final : public Clock
{
public:
    QDateTime now() const override { return m_system.now(); }
    TimerHandle after(std::chrono::milliseconds, std::function<void()> callback) override
    {
        return m_system.after({}, std::move(callback));
    }
    TimerHandle every(std::chrono::milliseconds, std::function<void()>) override { return {}; }

private:
    SystemClock m_system;
};
