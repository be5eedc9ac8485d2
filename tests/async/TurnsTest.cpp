#include "async/Turns.h"

#include "async/Promise.h"
#include "async/Spawn.h"
#include "model/Failure.h"

#include <deque>
#include <gtest/gtest.h>

namespace {

/// Tasks that take turns, and a record of those that are running.
struct Visitors
{
    explicit Visitors(int limit) : turns(std::make_unique<Turns>(limit)) {}

    static QCoro::Task<> visit(Visitors *self, int visitor, QCoro::Task<Turns::Turn> turn,
                               QCoro::Task<int> stay)
    {
        const Turns::Turn held = co_await turn;
        self->entered.push_back(visitor);
        co_await stay;
        self->left.push_back(visitor);
    }

    void enter(int visitor)
    {
        stays.emplace_back();
        spawn(visit(this, visitor, turns->next(), stays.back().task()));
    }

    std::unique_ptr<Turns> turns;
    std::deque<Promise<int>> stays;
    std::vector<int> entered;
    std::vector<int> left;
};

std::vector<int> numbers(int count)
{
    std::vector<int> result(count);
    for (int i = 0; i < count; ++i)
        result[i] = i;
    return result;
}

} // namespace

TEST(Turns, AsManyAsAllowedGoAheadAtOnce)
{
    Visitors visitors(2);
    for (int i = 0; i < 4; ++i)
        visitors.enter(i);
    EXPECT_EQ(visitors.entered, numbers(2));
    EXPECT_EQ(visitors.turns->underWay(), 2);
    EXPECT_EQ(visitors.turns->waiting(), 2);
    for (auto &stay : visitors.stays)
        stay.succeed(0);
}

TEST(Turns, TheOthersGoOnInTheOrderInWhichTheyAsked)
{
    Visitors visitors(2);
    for (int i = 0; i < 4; ++i)
        visitors.enter(i);
    visitors.stays[1].succeed(0);
    EXPECT_EQ(visitors.entered, numbers(3));
    EXPECT_EQ(visitors.turns->underWay(), 2);
    visitors.stays[0].succeed(0);
    EXPECT_EQ(visitors.entered, numbers(4));
    visitors.stays[2].succeed(0);
    visitors.stays[3].succeed(0);
    EXPECT_EQ(visitors.turns->underWay(), 0);
    EXPECT_EQ(visitors.left, (std::vector{1, 0, 2, 3}));
}

TEST(Turns, ATaskThatFailsGivesItsTurnOn)
{
    Visitors visitors(1);
    visitors.enter(0);
    visitors.enter(1);
    visitors.stays[0].fail(Cancelled());
    EXPECT_EQ(visitors.entered, numbers(2));
    EXPECT_TRUE(visitors.left.empty());
    visitors.stays[1].succeed(0);
}

TEST(Turns, ManyThatEndAtOnceDoNotPileUp)
{
    constexpr int Many = 20'000;
    Visitors visitors(1);
    for (int i = 0; i < Many; ++i)
        visitors.enter(i);
    for (int i = 1; i < Many; ++i)
        visitors.stays[i].succeed(0);
    EXPECT_EQ(visitors.entered, numbers(1));
    visitors.stays[0].succeed(0);
    EXPECT_EQ(visitors.left, numbers(Many));
    EXPECT_EQ(visitors.turns->underWay(), 0);
}

TEST(Turns, WhoWaitsGoesOnWhenTheTurnsAreGone)
{
    Visitors visitors(1);
    visitors.enter(0);
    visitors.enter(1);
    visitors.turns.reset();
    visitors.stays[0].succeed(0);
    EXPECT_EQ(visitors.entered, numbers(2));
    visitors.stays[1].succeed(0);
    EXPECT_EQ(visitors.left, numbers(2));
}
