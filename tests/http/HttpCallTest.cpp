#include "http/HttpCall.h"

#include "support/ManualClock.h"
#include "support/TaskResult.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

using Kind = TransportError::Kind;

QCoro::Task<HttpAnswer> answerOf(std::shared_ptr<HttpCall> call, std::stop_token stop)
{
    co_return co_await call->answer(std::move(stop));
}

/// A call whose exchange emits signals when the test tells it to.
class HttpCallTest : public testing::Test
{
protected:
    HttpCallTest()
    {
        auto followed = std::make_unique<HttpExchange>(HttpRequest(), Identity());
        exchange = followed.get();
        call->follow(std::move(followed));
    }

    Kind failure() const
    {
        try {
            result.value();
        } catch (const TransportError &error) {
            return error.kind();
        }
        throw std::logic_error("no failure");
    }

    ManualClock clock;
    std::shared_ptr<HttpCall> call = std::make_shared<HttpCall>(clock, HttpRequest::TimeLimits());
    /// Owned by the call.
    HttpExchange *exchange = nullptr;
    std::stop_source stop;
    TaskResult<HttpAnswer> result{answerOf(call, stop.get_token())};
};

TEST_F(HttpCallTest, ThirtySecondsWithoutAByteEndIt)
{
    clock.advance(29999ms);
    EXPECT_FALSE(result.isDone());
    clock.advance(1ms);
    ASSERT_TRUE(result.isDone());
    EXPECT_EQ(failure(), Kind::TimedOut);
}

TEST_F(HttpCallTest, EachByteGivesThirtySecondsMore)
{
    clock.advance(29s);
    Q_EMIT exchange->progressed();
    clock.advance(29s);
    EXPECT_FALSE(result.isDone());
    clock.advance(1s);
    ASSERT_TRUE(result.isDone());
    EXPECT_EQ(failure(), Kind::TimedOut);
}

TEST_F(HttpCallTest, TheWholeTakesNoLongerThanItsLimitThoughBytesKeepComing)
{
    for (int i = 0; i < 5; ++i) {
        clock.advance(10s);
        Q_EMIT exchange->progressed();
    }
    clock.advance(9999ms);
    EXPECT_FALSE(result.isDone());
    clock.advance(1ms);
    ASSERT_TRUE(result.isDone());
    EXPECT_EQ(failure(), Kind::TimedOut);
}

TEST_F(HttpCallTest, TheFirstEndCounts)
{
    const auto kept = call;
    Q_EMIT exchange->finished(HttpAnswer{.status = 200, .mediaType = {}, .body = {}, .file = {}});
    ASSERT_TRUE(result.isDone());
    clock.advance(1h);
    stop.request_stop();
    EXPECT_EQ(result.value().status, 200);
}

TEST_F(HttpCallTest, AnEndStopsTheClock)
{
    Q_EMIT exchange->finished(std::unexpected(Kind::Refused));
    EXPECT_EQ(failure(), Kind::Refused);
    EXPECT_EQ(clock.pending(), 0);
}

TEST_F(HttpCallTest, AStopEndsItWithoutAFailureToShow)
{
    stop.request_stop();
    ASSERT_TRUE(result.isDone());
    EXPECT_THROW(result.value(), Cancelled);
    EXPECT_EQ(clock.pending(), 0);
}

class TransferLimits : public testing::Test
{
protected:
    explicit TransferLimits()
    {
        auto followed = std::make_unique<HttpExchange>(HttpRequest(), Identity());
        exchange = followed.get();
        call->follow(std::move(followed));
    }

    /// Lets a byte come now and then, at most `times` times, and returns how often one came.
    int trickle(int times)
    {
        int count = 0;
        for (; count < times && !result.isDone(); ++count) {
            clock.advance(299s);
            Q_EMIT exchange->progressed();
        }
        return count;
    }

    ManualClock clock;
    std::shared_ptr<HttpCall> call = std::make_shared<HttpCall>(
        clock, HttpRequest::transferLimits(2900 * HttpRequest::SlowestTransfer));
    QPointer<HttpExchange> exchange;
    TaskResult<HttpAnswer> result{answerOf(call, {})};
};

TEST_F(TransferLimits, ATransferGoesOnWhileBytesCome)
{
    trickle(10);
    EXPECT_FALSE(result.isDone());
    clock.advance(300s);
    EXPECT_TRUE(result.isDone());
}

TEST_F(TransferLimits, ATransferSlowerThanAnyLineEnds)
{
    EXPECT_EQ(trickle(100), 12);
    EXPECT_TRUE(result.isDone());
}

} // namespace
