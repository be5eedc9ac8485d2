#include "async/Settled.h"

#include "Promise.h"
#include "support/TaskResult.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QCoro::Task<> finishing(Promise<int> promise)
{
    co_await promise.task();
}

TEST(SettledTest, aResultIsGivenAsItIs)
{
    const Promise<int> promise;
    const TaskResult<Settled<int>> result(settled(nullptr, promise.task()));
    EXPECT_FALSE(result.isDone());
    promise.succeed(3);

    EXPECT_EQ(result.value().value(), 3);
}

TEST(SettledTest, aFailureBecomesAValueWithItsText)
{
    const Promise<int> promise;
    const TaskResult<Settled<int>> result(settled(nullptr, promise.task()));
    promise.fail(Failure(u"Panne."_s));

    EXPECT_EQ(result.value().error(), (TaskFailure{u"Panne."_s, false}));
}

TEST(SettledTest, aCancellationIsToldFromAFailure)
{
    const Promise<int> promise;
    const TaskResult<Settled<int>> result(settled(nullptr, promise.task()));
    promise.fail(Cancelled());

    EXPECT_TRUE(result.value().error().isCancellation);
}

TEST(SettledTest, anExceptionThatIsNoFailureBecomesOneThatTheUserCanRead)
{
    const Promise<int> promise;
    const TaskResult<Settled<int>> result(settled(nullptr, promise.task()));
    promise.fail(std::runtime_error("stray"));

    EXPECT_EQ(result.value().error(),
              (TaskFailure{u"Une erreur inattendue est survenue."_s, false}));
}

TEST(SettledTest, theEndOfAnOwnerPassesThrough)
{
    const Promise<int> promise;
    const TaskResult<Settled<int>> result(settled(nullptr, promise.task()));
    promise.fail(OwnerGone());

    EXPECT_THROW(result.value(), OwnerGone);
}

TEST(SettledTest, aTaskWithoutAResultSettlesToo)
{
    const Promise<int> promise;
    const TaskResult<Settled<void>> result(settled(nullptr, finishing(promise)));
    promise.succeed(0);

    EXPECT_TRUE(result.value().has_value());
}

TEST(SettledTest, whatTheTaskWorksOnLivesUntilItHasEnded)
{
    const Promise<int> promise;
    auto work = std::make_shared<int>(7);
    const std::weak_ptr<int> watched = work;
    const TaskResult<Settled<int>> result(settled(std::move(work), promise.task()));
    EXPECT_FALSE(watched.expired());
    promise.succeed(1);

    EXPECT_TRUE(watched.expired());
}

} // namespace
