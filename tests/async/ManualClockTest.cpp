#include "support/ManualClock.h"

#include <QStringList>
#include <QTimeZone>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

TEST(ManualClock, StandsAtItsFirstInstantUntilTurned)
{
    ManualClock clock;
    const QDateTime start({2026, 10, 29}, {13, 32}, QTimeZone::utc());
    EXPECT_EQ(clock.now(), start);
    clock.advance(90s);
    EXPECT_EQ(clock.now(), start.addSecs(90));
}

TEST(ManualClock, CallsOnceWhenDue)
{
    ManualClock clock;
    int calls = 0;
    const auto timer = clock.after(100ms, [&] { ++calls; });
    clock.advance(99ms);
    EXPECT_EQ(calls, 0);
    clock.advance(1ms);
    EXPECT_EQ(calls, 1);
    clock.advance(1h);
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(clock.pending(), 0);
}

TEST(ManualClock, RepeatsAsOftenAsThePeriodFits)
{
    ManualClock clock;
    int calls = 0;
    auto timer = clock.every(100ms, [&] { ++calls; });
    clock.advance(350ms);
    EXPECT_EQ(calls, 3);
    timer.reset();
    clock.advance(1h);
    EXPECT_EQ(calls, 3);
}

TEST(ManualClock, FiresInOrderOfTimeThenOfAsking)
{
    ManualClock clock;
    QStringList order;
    const auto late = clock.after(2s, [&] { order << u"late"_s; });
    const auto first = clock.after(1s, [&] { order << u"first"_s; });
    const auto second = clock.after(1s, [&] { order << u"second"_s; });
    clock.advance(3s);
    EXPECT_EQ(order, (QStringList{u"first"_s, u"second"_s, u"late"_s}));
}

TEST(ManualClock, ShowsACallTheTimeAtWhichItWasDue)
{
    ManualClock clock;
    const QDateTime start = clock.now();
    QDateTime seen;
    const auto timer = clock.after(1s, [&] { seen = clock.now(); });
    clock.advance(10s);
    EXPECT_EQ(seen, start.addSecs(1));
    EXPECT_EQ(clock.now(), start.addSecs(10));
}

TEST(ManualClock, FiresWhatACallAsksForOnTheWay)
{
    ManualClock clock;
    int calls = 0;
    Clock::TimerHandle inner;
    const auto outer = clock.after(1s, [&] { inner = clock.after(1s, [&] { ++calls; }); });
    clock.advance(2s);
    EXPECT_EQ(calls, 1);
}

TEST(ManualClock, LetsACallDestroyItsOwnHandle)
{
    ManualClock clock;
    int calls = 0;
    Clock::TimerHandle timer;
    timer = clock.every(1s, [&] {
        ++calls;
        timer.reset();
    });
    clock.advance(5s);
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(clock.pending(), 0);
}

TEST(ManualClock, OutlivedByAHandleDoesNoHarm)
{
    Clock::TimerHandle timer;
    {
        ManualClock clock;
        timer = clock.after(1s, [] {});
        EXPECT_EQ(clock.pending(), 1);
    }
    timer.reset();
    EXPECT_EQ(timer, nullptr);
}

} // namespace
