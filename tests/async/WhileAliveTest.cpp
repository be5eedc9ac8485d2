#include "async/WhileAlive.h"

#include "Promise.h"
#include "model/Failure.h"
#include "support/TaskResult.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QCoro::Task<> withoutValue(Promise<int> promise)
{
    co_await promise.task();
}

/// An owner, a task that it awaits, and the outcome of the wait.
struct Waiting
{
    std::unique_ptr<QObject> owner = std::make_unique<QObject>();
    Promise<int> promise;
    TaskResult<int> result{whileAlive(QPointer<QObject>(owner.get()), promise.task())};
};

struct WaitingForNothing
{
    std::unique_ptr<QObject> owner = std::make_unique<QObject>();
    Promise<int> promise;
    TaskResult<void> result{whileAlive(QPointer<QObject>(owner.get()), withoutValue(promise))};
};

TEST(WhileAlive, GivesTheResult)
{
    const Waiting waiting;
    EXPECT_FALSE(waiting.result.isDone());
    waiting.promise.succeed(7);
    ASSERT_TRUE(waiting.result.isDone());
    EXPECT_EQ(waiting.result.value(), 7);
}

TEST(WhileAlive, GivesTheResultOfATaskThatIsAlreadyDone)
{
    QObject owner;
    const Promise<int> promise;
    promise.succeed(7);
    const TaskResult<int> result(whileAlive(QPointer<QObject>(&owner), promise.task()));
    ASSERT_TRUE(result.isDone());
    EXPECT_EQ(result.value(), 7);
}

TEST(WhileAlive, PassesTheFailureOn)
{
    const Waiting waiting;
    waiting.promise.fail(Failure(u"Non"_s));
    ASSERT_TRUE(waiting.result.isDone());
    EXPECT_THROW(waiting.result.value(), Failure);
}

TEST(WhileAlive, PassesACancellationOnAsItIs)
{
    const Waiting waiting;
    waiting.promise.fail(Cancelled());
    EXPECT_THROW(waiting.result.value(), Cancelled);
}

TEST(WhileAlive, EndsASuccessOfAGoneOwnerWithOwnerGone)
{
    Waiting waiting;
    waiting.owner.reset();
    EXPECT_FALSE(waiting.result.isDone());
    waiting.promise.succeed(7);
    ASSERT_TRUE(waiting.result.isDone());
    EXPECT_THROW(waiting.result.value(), OwnerGone);
}

TEST(WhileAlive, EndsAFailureOfAGoneOwnerWithOwnerGone)
{
    Waiting waiting;
    waiting.owner.reset();
    waiting.promise.fail(Failure(u"Non"_s));
    EXPECT_THROW(waiting.result.value(), OwnerGone);
}

TEST(WhileAlive, OwnerGoneIsNoFailureForAHandlerToCatch)
{
    EXPECT_FALSE((std::is_base_of_v<Failure, OwnerGone>));
}

TEST(WhileAlive, LetsATaskWithoutValueEnd)
{
    const WaitingForNothing waiting;
    EXPECT_FALSE(waiting.result.isDone());
    waiting.promise.succeed(7);
    EXPECT_TRUE(waiting.result.isDone());
    EXPECT_NO_THROW(waiting.result.value());
}

TEST(WhileAlive, PassesTheFailureOfATaskWithoutValueOn)
{
    const WaitingForNothing waiting;
    waiting.promise.fail(Failure(u"Non"_s));
    EXPECT_THROW(waiting.result.value(), Failure);
}

TEST(WhileAlive, EndsATaskWithoutValueOfAGoneOwnerWithOwnerGone)
{
    WaitingForNothing waiting;
    waiting.owner.reset();
    waiting.promise.succeed(7);
    EXPECT_THROW(waiting.result.value(), OwnerGone);
}

} // namespace
