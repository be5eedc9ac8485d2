#include "SessionTest.h"

namespace {

using Ending = RawAnswer::Ending;

/// More than the system keeps of what a server does not read.
constexpr qsizetype Long = 24 << 20;

/// How much of a body was sent, over TCP and over TLS.
class SentBytes : public SessionTest,
                  public testing::WithParamInterface<std::optional<Certificates::Kind>>
{
protected:
    SentBytes() : SessionTest(GetParam()) {}

    UploadObserver observer()
    {
        return [this](const UploadProgress &progress) { told.append(progress); };
    }
    TaskResult<HttpAnswer> send(qsizetype size)
    {
        return TaskResult(session->send(write("/file", "POST", QByteArray(size, 'x')),
                                        stop.get_token(), observer()));
    }
    /// Waits until the server does not take any more.
    bool halts()
    {
        return runUntil([this] {
            return !told.isEmpty() && told.last().sent >= 64 << 10 && server.connections() == 1;
        });
    }

    const Certificates::TrustedAuthority trusted;
    std::stop_source stop;
    QList<UploadProgress> told;
};

TEST_P(SentBytes, AreToldUntilTheWholeBodyWasSent)
{
    server.answer(RawAnswer::json("{}"));
    const qsizetype size = 300'000;
    const TaskResult<HttpAnswer> result = send(size);
    ASSERT_TRUE(runUntil([&] { return result.isDone(); }));
    EXPECT_EQ(result.value().status, 200);
    ASSERT_GT(told.size(), 2);
    EXPECT_EQ(told.last(), (UploadProgress{size, size}));
    EXPECT_TRUE(std::ranges::is_sorted(told, {}, &UploadProgress::sent));
}

TEST_P(SentBytes, AreFewerThanAllWhileTheServerReadsNoMore)
{
    server.readAtMost(1 << 20);
    const TaskResult<HttpAnswer> result = send(Long);
    ASSERT_TRUE(halts());
    stop.request_stop();
    EXPECT_THROW(result.value(), Cancelled);
    EXPECT_LT(told.last().sent, Long);
    EXPECT_EQ(told.last().total, Long);
    server.readOn();
    EXPECT_TRUE(runUntil([&] { return server.openConnections() == 0; }));
    EXPECT_TRUE(server.journal().isEmpty());
}

TEST_P(SentBytes, GoOnWhenTheServerReadsAgain)
{
    server.answer(RawAnswer::json("{}"));
    server.readAtMost(1 << 20);
    const TaskResult<HttpAnswer> result = send(Long);
    ASSERT_TRUE(halts());
    EXPECT_FALSE(result.isDone());
    server.readOn();
    ASSERT_TRUE(runUntil([&] { return result.isDone(); }));
    EXPECT_EQ(told.last(), (UploadProgress{Long, Long}));
    EXPECT_EQ(server.journal().first().body.size(), Long);
}

TEST_P(SentBytes, MayMakeTheObserverCancel)
{
    server.readAtMost(1 << 20);
    const auto cancelling = [this](const UploadProgress &) { stop.request_stop(); };
    const TaskResult<HttpAnswer> result(
        session->send(write("/file", "POST", QByteArray(Long, 'x')), stop.get_token(), cancelling));
    ASSERT_TRUE(runUntil([&] { return result.isDone(); }));
    EXPECT_THROW(result.value(), Cancelled);
}

TEST_P(SentBytes, AreNotToldAfterTheSessionWasClosed)
{
    server.readAtMost(1 << 20);
    const TaskResult<HttpAnswer> result = send(Long);
    ASSERT_TRUE(halts());
    session.reset();
    const qsizetype before = told.size();
    server.readOn();
    ASSERT_TRUE(runUntil([&] { return result.isDone(); }));
    EXPECT_THROW(result.value(), Cancelled);
    EXPECT_EQ(told.size(), before);
}

INSTANTIATE_TEST_SUITE_P(OverTcpAndTls, SentBytes,
                         testing::Values(std::nullopt, std::optional(Certificates::Kind::Good)),
                         [](const auto &info) { return info.param ? "Tls" : "Tcp"; });

} // namespace
