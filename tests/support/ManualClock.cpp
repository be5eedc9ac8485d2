#include "support/ManualClock.h"

#include <QTimeZone>

struct ManualClock::Entry
{
    QDateTime due;
    std::chrono::milliseconds period;
    std::function<void()> callback;
};

class ManualClock::Handle final : public Clock::Timer
{
public:
    Handle(ManualClock &clock, std::weak_ptr<Entry> entry)
        : m_clock(clock), m_entry(std::move(entry))
    {
    }
    ~Handle() override
    {
        if (const auto entry = m_entry.lock())
            m_clock.m_timers.remove(entry);
    }
    Handle(const Handle &) = delete;
    Handle &operator=(const Handle &) = delete;

private:
    ManualClock &m_clock;
    std::weak_ptr<Entry> m_entry;
};

ManualClock::ManualClock() : ManualClock(QDateTime({2026, 10, 29}, {13, 32}, QTimeZone::utc())) {}

Clock::TimerHandle ManualClock::after(std::chrono::milliseconds delay,
                                      std::function<void()> callback)
{
    return add(delay, std::chrono::milliseconds::zero(), std::move(callback));
}

Clock::TimerHandle ManualClock::every(std::chrono::milliseconds period,
                                      std::function<void()> callback)
{
    return add(period, period, std::move(callback));
}

Clock::TimerHandle ManualClock::add(std::chrono::milliseconds delay,
                                    std::chrono::milliseconds period,
                                    std::function<void()> callback)
{
    auto entry =
        std::make_shared<Entry>(m_now.addMSecs(delay.count()), period, std::move(callback));
    m_timers.push_back(entry);
    return std::make_unique<Handle>(*this, entry);
}

void ManualClock::advance(std::chrono::milliseconds duration)
{
    const QDateTime end = m_now.addMSecs(duration.count());
    while (!m_timers.empty()) {
        const auto next =
            std::ranges::min_element(m_timers, {}, [](const auto &e) { return e->due; });
        if ((*next)->due > end)
            break;
        // Kept alive over the call: the callback may destroy its own handle.
        // NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
        const std::shared_ptr<Entry> entry = *next;
        m_now = entry->due;
        if (entry->period > std::chrono::milliseconds::zero())
            entry->due = entry->due.addMSecs(entry->period.count());
        else
            m_timers.remove(entry);
        const auto callback = entry->callback;
        callback();
    }
    m_now = end;
}
