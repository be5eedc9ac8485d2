#include "async/Spawn.h"

#include "Promise.h"
#include "async/WhileAlive.h"
#include "model/Failure.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QCoro::Task<> store(Promise<int> promise, std::shared_ptr<int> target)
{
    *target = co_await promise.task();
}

/// The output on stderr when a spawned task ends with the error.
template <typename E>
std::string reportOf(E error)
{
    const Promise<int> promise;
    testing::internal::CaptureStderr();
    spawn(store(promise, std::make_shared<int>()));
    promise.fail(std::move(error));
    return testing::internal::GetCapturedStderr();
}

TEST(Spawn, RunsATaskToItsEnd)
{
    const Promise<int> promise;
    const auto target = std::make_shared<int>(0);
    spawn(store(promise, target));
    EXPECT_EQ(*target, 0);
    promise.succeed(7);
    EXPECT_EQ(*target, 7);
}

TEST(Spawn, RunsATaskThatIsDoneAtOnce)
{
    const Promise<int> promise;
    promise.succeed(7);
    const auto target = std::make_shared<int>(0);
    spawn(store(promise, target));
    EXPECT_EQ(*target, 7);
}

TEST(Spawn, ReleasesWhatTheTaskHeld)
{
    const Promise<int> promise;
    const auto target = std::make_shared<int>(0);
    spawn(store(promise, target));
    EXPECT_GT(target.use_count(), 1);
    promise.succeed(7);
    EXPECT_EQ(target.use_count(), 1);
}

TEST(Spawn, SwallowsAStrayFailureAndReportsItInDebugBuilds)
{
    const std::string report = reportOf(Failure(u"Réseau coupé"_s));
#ifndef QT_NO_DEBUG
    EXPECT_THAT(report, testing::HasSubstr("Réseau coupé"));
#else
    EXPECT_EQ(report, "");
#endif
}

TEST(Spawn, SaysNothingOfACancelledTask)
{
    EXPECT_EQ(reportOf(Cancelled()), "");
}

TEST(Spawn, SaysNothingOfATaskWhoseOwnerIsGone)
{
    EXPECT_EQ(reportOf(OwnerGone()), "");
}

} // namespace
