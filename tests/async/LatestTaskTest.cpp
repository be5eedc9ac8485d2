#include "async/LatestTask.h"

#include "Promise.h"

#include <QStringList>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A search whose operations the test completes itself.
class LatestTaskTest : public testing::Test
{
protected:
    /// Starts an operation that ends with the promise, and stores its stop token.
    void start(const Promise<int> &promise)
    {
        task->start(
            [this, promise](std::stop_token stop) {
                stops.push_back(std::move(stop));
                return promise.task();
            },
            [this](const LatestTask<int>::Outcome &outcome) { deliver(outcome); });
    }

    std::unique_ptr<LatestTask<int>> task = std::make_unique<LatestTask<int>>();
    std::vector<std::stop_token> stops;
    QStringList delivered;
    std::function<void()> onDelivery;

private:
    void deliver(const LatestTask<int>::Outcome &outcome)
    {
        delivered << (outcome ? QString::number(*outcome) : outcome.error().message());
        if (const auto react = std::exchange(onDelivery, nullptr))
            react();
    }
};

TEST_F(LatestTaskTest, DeliversTheResult)
{
    const Promise<int> promise;
    start(promise);
    EXPECT_TRUE(task->isRunning());
    EXPECT_TRUE(delivered.isEmpty());
    promise.succeed(7);
    EXPECT_EQ(delivered, QStringList{u"7"_s});
    EXPECT_FALSE(task->isRunning());
}

TEST_F(LatestTaskTest, DeliversATaskThatIsAlreadyDone)
{
    const Promise<int> promise;
    promise.succeed(7);
    start(promise);
    EXPECT_EQ(delivered, QStringList{u"7"_s});
    EXPECT_FALSE(task->isRunning());
}

TEST_F(LatestTaskTest, DeliversTheFailure)
{
    const Promise<int> promise;
    start(promise);
    promise.fail(Failure(u"Réseau coupé"_s));
    EXPECT_EQ(delivered, QStringList{u"Réseau coupé"_s});
    EXPECT_FALSE(task->isRunning());
}

TEST_F(LatestTaskTest, DeliversNothingOfACancelledOperation)
{
    const Promise<int> promise;
    start(promise);
    promise.fail(Cancelled());
    EXPECT_TRUE(delivered.isEmpty());
    EXPECT_FALSE(task->isRunning());
}

TEST_F(LatestTaskTest, OvertakenTaskIsStoppedAndNeverDelivered)
{
    const Promise<int> slow;
    const Promise<int> quick;
    start(slow);
    start(quick);
    EXPECT_TRUE(stops.at(0).stop_requested());
    EXPECT_FALSE(stops.at(1).stop_requested());
    quick.succeed(2);
    slow.succeed(1);
    EXPECT_EQ(delivered, QStringList{u"2"_s});
}

TEST_F(LatestTaskTest, OvertakenTaskThatEndsFirstIsNotDelivered)
{
    const Promise<int> slow;
    const Promise<int> quick;
    start(slow);
    start(quick);
    slow.fail(Failure(u"trop tard"_s));
    EXPECT_TRUE(delivered.isEmpty());
    EXPECT_TRUE(task->isRunning());
    quick.succeed(2);
    EXPECT_EQ(delivered, QStringList{u"2"_s});
}

TEST_F(LatestTaskTest, CancelledTaskIsStoppedAndNeverDelivered)
{
    const Promise<int> promise;
    start(promise);
    task->cancel();
    EXPECT_TRUE(stops.at(0).stop_requested());
    EXPECT_FALSE(task->isRunning());
    promise.succeed(7);
    EXPECT_TRUE(delivered.isEmpty());
}

TEST_F(LatestTaskTest, GoneOwnerStopsTheTaskAndGetsNothing)
{
    const Promise<int> promise;
    start(promise);
    task.reset();
    EXPECT_TRUE(stops.at(0).stop_requested());
    promise.succeed(7);
    EXPECT_TRUE(delivered.isEmpty());
}

TEST_F(LatestTaskTest, MayBeCancelledFromInsideDelivery)
{
    const Promise<int> promise;
    start(promise);
    onDelivery = [this] { task->cancel(); };
    promise.succeed(7);
    EXPECT_EQ(delivered, QStringList{u"7"_s});
    EXPECT_FALSE(task->isRunning());
}

TEST_F(LatestTaskTest, MayBeRestartedFromInsideDelivery)
{
    const Promise<int> first;
    const Promise<int> second;
    start(first);
    onDelivery = [this, second] { start(second); };
    first.succeed(1);
    EXPECT_TRUE(task->isRunning());
    EXPECT_FALSE(stops.at(1).stop_requested());
    second.succeed(2);
    EXPECT_EQ(delivered, (QStringList{u"1"_s, u"2"_s}));
    EXPECT_FALSE(task->isRunning());
}

TEST_F(LatestTaskTest, MayBeDestroyedFromInsideDelivery)
{
    const Promise<int> promise;
    start(promise);
    onDelivery = [this] { task.reset(); };
    promise.succeed(7);
    EXPECT_EQ(delivered, QStringList{u"7"_s});
    EXPECT_EQ(task, nullptr);
}

TEST_F(LatestTaskTest, NoLongerRunsAfterAStrayException)
{
    const Promise<int> promise;
    start(promise);
    testing::internal::CaptureStderr();
    promise.fail(std::runtime_error("stray"));
    testing::internal::GetCapturedStderr();
    EXPECT_TRUE(delivered.isEmpty());
    EXPECT_FALSE(task->isRunning());
}

} // namespace
