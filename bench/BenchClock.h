#pragma once

#include "platform/Clock.h"

/// The present, but nothing takes time: waits end at the next turn of the event loop, and nothing recurs.
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
