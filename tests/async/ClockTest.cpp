#include "platform/Clock.h"

#include "async/WhileAlive.h"
#include "model/Failure.h"
#include "support/ManualClock.h"
#include "support/TaskResult.h"

#include <QCoreApplication>
#include <QTest>

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

TEST(ClockSleep, EndsWhenTheTimeIsUp)
{
    ManualClock clock;
    const TaskResult<void> sleep(clock.sleep(250ms));
    clock.advance(249ms);
    EXPECT_FALSE(sleep.isDone());
    clock.advance(1ms);
    EXPECT_TRUE(sleep.isDone());
    EXPECT_FALSE(sleep.hasFailed());
    EXPECT_EQ(clock.pending(), 0);
}

TEST(ClockSleep, IsCancelledByAStopAtOnce)
{
    ManualClock clock;
    std::stop_source stop;
    const TaskResult<void> sleep(clock.sleep(250ms, stop.get_token()));
    stop.request_stop();
    ASSERT_TRUE(sleep.isDone());
    EXPECT_THROW(sleep.value(), Cancelled);
    EXPECT_EQ(clock.pending(), 0);
}

TEST(ClockSleep, AskedForAfterTheStopDoesNotBegin)
{
    ManualClock clock;
    std::stop_source stop;
    stop.request_stop();
    const TaskResult<void> sleep(clock.sleep(250ms, stop.get_token()));
    EXPECT_THROW(sleep.value(), Cancelled);
    EXPECT_EQ(clock.pending(), 0);
}

TEST(ClockSleep, IsNotTouchedByAStopAfterItsEnd)
{
    ManualClock clock;
    std::stop_source stop;
    const TaskResult<void> sleep(clock.sleep(250ms, stop.get_token()));
    clock.advance(250ms);
    stop.request_stop();
    EXPECT_TRUE(sleep.isDone());
    EXPECT_FALSE(sleep.hasFailed());
}

TEST(ClockSleep, OfAGoneOwnerEndsWithoutTouchingIt)
{
    ManualClock clock;
    auto owner = std::make_unique<QObject>();
    const TaskResult<void> sleep(whileAlive(QPointer<QObject>(owner.get()), clock.sleep(250ms)));
    owner.reset();
    clock.advance(250ms);
    ASSERT_TRUE(sleep.isDone());
    EXPECT_THROW(sleep.value(), OwnerGone);
}

/// Sleeps twice, one sleep after the other.
QCoro::Task<> sleepTwice(ManualClock *clock)
{
    co_await clock->sleep(100ms);
    co_await clock->sleep(100ms);
}

TEST(ClockSleep, MayFollowAnotherWithinOneAdvance)
{
    ManualClock clock;
    const TaskResult<void> both(sleepTwice(&clock));
    clock.advance(200ms);
    EXPECT_TRUE(both.isDone());
}

/// Runs the event loop until the condition holds; gives up after five seconds.
bool becomesTrue(const std::function<bool()> &condition)
{
    return QTest::qWaitFor(condition, 5000);
}

TEST(SystemClock, TellsTheTimeInUtc)
{
    const SystemClock clock;
    EXPECT_EQ(clock.now().timeSpec(), Qt::UTC);
    EXPECT_LT(std::abs(clock.now().msecsTo(QDateTime::currentDateTimeUtc())), 60000);
}

TEST(SystemClock, WakesASleepFromTheEventLoop)
{
    SystemClock clock;
    const TaskResult<void> sleep(clock.sleep(1ms));
    EXPECT_FALSE(sleep.isDone());
    EXPECT_TRUE(becomesTrue([&] { return sleep.isDone(); }));
    EXPECT_FALSE(sleep.hasFailed());
}

TEST(SystemClock, RepeatsUntilTheHandleGoesEvenFromInsideTheCall)
{
    SystemClock clock;
    int calls = 0;
    Clock::TimerHandle timer;
    timer = clock.every(1ms, [&] {
        if (++calls == 3)
            timer.reset();
    });
    EXPECT_TRUE(becomesTrue([&] { return timer == nullptr; }));
    EXPECT_EQ(calls, 3);
}

TEST(SystemClock, CallsNothingAfterTheHandleIsGone)
{
    SystemClock clock;
    bool isCalled = false;
    bool isLaterCalled = false;
    clock.after(0ms, [&] { isCalled = true; }).reset();
    const auto later = clock.after(1ms, [&] { isLaterCalled = true; });
    EXPECT_TRUE(becomesTrue([&] { return isLaterCalled; }));
    EXPECT_FALSE(isCalled);
}

} // namespace
