#include "SessionTest.h"
#include "simulator/server/Packed.h"
#include "simulator/server/UnknownHost.h"

#include <QFile>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Ending = RawAnswer::Ending;
using Kind = TransportError::Kind;

using HttpFaults = SessionTest;

TEST_F(HttpFaults, ANameThatNobodyKnows)
{
    HttpRequest sent = request("/a");
    sent.url = unknownHostUrl();
    EXPECT_EQ(failureOf(sent), Kind::HostNotFound);
}

TEST_F(HttpFaults, APortThatNobodyListensTo)
{
    server.stopListening();
    EXPECT_EQ(failureOf(request("/a")), Kind::Refused);
    EXPECT_EQ(failureOf(write("/a", "POST", "{}")), Kind::Refused);
}

TEST_F(HttpFaults, AConnectionThatBreaksBeforeTheAnswer)
{
    for (const Ending ending : {Ending::Close, Ending::Reset}) {
        server.answer(RawAnswer::nothing(ending));
        EXPECT_EQ(failureOf(request("/a")), Kind::ConnectionLost);
    }
}

TEST_F(HttpFaults, AConnectionThatBreaksWithinTheBody)
{
    for (const Ending ending : {Ending::Close, Ending::Reset}) {
        server.answer(RawAnswer::json("[1,2,3]").cut(3, ending));
        EXPECT_EQ(failureOf(request("/a")), Kind::ConnectionLost);
        EXPECT_EQ(failureOf(write("/a", "POST", "{}")), Kind::ConnectionLost);
    }
}

TEST_F(HttpFaults, AConnectionThatBreaksWithinTheBodyOfAFailure)
{
    server.answer(RawAnswer::json("[1,2,3]", 500).cut(3, Ending::Close));
    EXPECT_EQ(failureOf(request("/a")), Kind::ConnectionLost);
}

TEST_F(HttpFaults, ABodyShorterThanAnnounced)
{
    server.answer(RawAnswer::http(200, "{}", {{"Content-Length", "20"}}).withEnding(Ending::Close));
    EXPECT_EQ(failureOf(request("/a")), Kind::ConnectionLost);
}

TEST_F(HttpFaults, OfABodyWithoutALengthNobodyCanTellThatItIsWhole)
{
    server.answerNext(
        RawAnswer{"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n2\r\n{}\r\n0\r\n\r\n"});
    server.answerNext(RawAnswer{"HTTP/1.1 200 OK\r\n\r\n{}", Ending::Close});
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(answerTo(request("/a")).body, "{}");
}

TEST_F(HttpFaults, OfABodyLongerThanAnnouncedTheRestIsNoAnswerToTheNext)
{
    server.answerNext(RawAnswer::http(200, "{}garbage", {{"Content-Length", "2"}}));
    server.answer(RawAnswer::json("next"));
    EXPECT_EQ(answerTo(request("/a")).body, "{}");
    EXPECT_EQ(answerTo(request("/b")).body, "next");
}

TEST_F(HttpFaults, AnAnswerThatNeverHasABodyMayAnnounceALength)
{
    server.answer(RawAnswer{"HTTP/1.1 204 No Content\r\nContent-Length: 20\r\n\r\n"});
    EXPECT_EQ(answerTo(write("/a", "PUT", "{}")).status, 204);
    EXPECT_EQ(answerTo(request("/a")).status, 204);
}

TEST_F(HttpFaults, ALengthThatCannotBeReadSaysNothing)
{
    for (const char *length : {"abc", "-1", "5, 7", "2 bytes", "99999999999999999999"}) {
        server.answer(
            RawAnswer::http(200, "{}", {{"Content-Length", length}}).withEnding(Ending::Close));
        EXPECT_EQ(failureOf(request("/a")), Kind::Broken) << length;
    }
}

TEST_F(HttpFaults, ChunksOutrankALength)
{
    server.answer(RawAnswer{"HTTP/1.1 200 OK\r\nContent-Length: 20\r\n"
                            "Transfer-Encoding: chunked\r\n\r\n2\r\n{}\r\n0\r\n\r\n"});
    EXPECT_EQ(answerTo(request("/a")).body, "{}");
}

/// Qt 6.4 ends a reply at an informational response other than 100, so the final one can no longer be read.
TEST_F(HttpFaults, AnInformationalAnswerIsNotTheAnswer)
{
    server.answerNext(RawAnswer{"HTTP/1.1 103 Early Hints\r\nLink: </a>\r\n\r\n"
                                "HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nfirst"});
    server.answer(RawAnswer::json("next"));
    EXPECT_EQ(failureOf(request("/a")), Kind::Broken);
    EXPECT_EQ(answerTo(request("/b")).body, "next");
}

TEST_F(HttpFaults, AnAnswerThatIsNoHTTP)
{
    server.answer(RawAnswer{"220 mail.exemple.fr ready\r\n", Ending::Close});
    EXPECT_TRUE(failureOf(request("/a")).has_value());
    EXPECT_TRUE(failureOf(write("/a", "POST", "{}")).has_value());
}

TEST_F(HttpFaults, NoAnswerInTime)
{
    server.answer(RawAnswer::nothing(Ending::Stall));
    const TaskResult<HttpAnswer> result(session->send(request("/a")));
    ASSERT_TRUE(arrive(1));
    clock.advance(60s);
    ASSERT_TRUE(result.isDone());
    EXPECT_THROW(result.value(), TransportError);
    EXPECT_TRUE(runUntil([&] { return server.openConnections() == 0; }));
}

TEST_F(HttpFaults, ABodyThatStops)
{
    server.answer(RawAnswer::json("[1,2,3]").cut(3, Ending::Stall));
    const TaskResult<HttpAnswer> result(session->send(request("/a")));
    ASSERT_TRUE(arrive(1));
    clock.advance(60s);
    ASSERT_TRUE(result.isDone());
    EXPECT_THROW(result.value(), TransportError);
}

TEST_F(HttpFaults, APackedBodyIsUnpacked)
{
    const QByteArray text = "{\"a\":\"" + QByteArray(500000, 'x') + "\"}";
    server.answer(RawAnswer::http(200, packed(text), {{"Content-Encoding", "gzip"}}));
    EXPECT_EQ(answerTo(request("/a")).body, text);
    EXPECT_EQ(server.journal().last().header("Accept-Encoding"), "gzip");
}

TEST_F(HttpFaults, ADamagedPackedBody)
{
    QByteArray bytes = packed(QByteArray(5000, 'x'));
    bytes[20] = char(~bytes[20]);
    server.answer(RawAnswer::http(200, bytes, {{"Content-Encoding", "gzip"}}));
    EXPECT_EQ(failureOf(request("/a")), Kind::Broken);
}

TEST_F(HttpFaults, ABodyThatIsNotPackedThoughItSaysSo)
{
    server.answer(RawAnswer::http(200, "{}", {{"Content-Encoding", "gzip"}}));
    EXPECT_EQ(failureOf(request("/a")), Kind::Broken);
}

TEST_F(HttpFaults, APackedBodyCutShort)
{
    const QByteArray bytes = packed(QByteArray(5000, 'x'));
    server.answer(RawAnswer::http(200, bytes.chopped(4), {{"Content-Encoding", "gzip"}}));
    EXPECT_EQ(failureOf(request("/a")), Kind::Broken);
}

TEST_F(HttpFaults, ABodyPackedInAWayThatNobodyAskedFor)
{
    server.answer(RawAnswer::http(200, "xyz", {{"Content-Encoding", "br"}}));
    EXPECT_EQ(failureOf(request("/a")), Kind::Broken);
}

TEST_F(HttpFaults, AnEmptyBodyIsWholeThoughItSaysThatItIsPacked)
{
    server.answer(RawAnswer::http(200, {}, {{"Content-Encoding", "gzip"}}));
    EXPECT_EQ(answerTo(request("/a")).body, QByteArray());
}

TEST_F(HttpFaults, ABodyOf100MegabytesEndsBeforeItIsHeld)
{
    constexpr qint64 size = 100LL * 1024 * 1024;
    server.answer(RawAnswer::largeOfUnknownLength(size, "application/json"));
    EXPECT_EQ(failureOf(request("/a")), Kind::TooLarge);
}

TEST_F(HttpFaults, ABodyThatIsSaidToHave100MegabytesEndsAtItsFirstBytes)
{
    constexpr qint64 size = 100LL * 1024 * 1024;
    server.answer(RawAnswer::large(size, 1000, "application/json").withEnding(Ending::Stall));
    EXPECT_EQ(failureOf(request("/a")), Kind::TooLarge);
}

TEST_F(HttpFaults, ASmallBodyThatUnpacksTo100Megabytes)
{
    const QByteArray bytes = packed(QByteArray(100LL * 1024 * 1024, ' '));
    ASSERT_LT(bytes.size(), 1024 * 1024);
    server.answer(RawAnswer::http(200, bytes, {{"Content-Encoding", "gzip"}}));
    EXPECT_EQ(failureOf(request("/a")), Kind::TooLarge);
}

} // namespace
