#include "SessionTest.h"

namespace {

using Ending = RawAnswer::Ending;
using Kind = TransportError::Kind;

struct Write
{
    const char *verb;
    const char *body;
    Ending ending;
};

/// A write must reach the server at most once, whatever happens to its connection.
class WriteOnce : public SessionTest, public testing::WithParamInterface<Write>
{
protected:
    HttpRequest sent() const
    {
        HttpRequest result = write("/write", GetParam().verb, GetParam().body);
        if (result.body->isEmpty())
            result.body.reset();
        return result;
    }
    qsizetype arrivals() const
    {
        return std::ranges::count(server.journal(), "/write", &RawRequest::target);
    }
};

TEST_P(WriteOnce, WhenItsConnectionBreaksBeforeTheAnswer)
{
    server.answer(RawAnswer::nothing(GetParam().ending));
    EXPECT_EQ(failureOf(sent()), Kind::ConnectionLost);
    // A further request shows that no other request was still pending.
    server.answer(RawAnswer::json("{}"));
    answerTo(request("/read"));
    EXPECT_EQ(arrivals(), 1);
}

TEST_P(WriteOnce, WhenTheConnectionWasKeptAlive)
{
    server.answerNext(RawAnswer::json("{}"));
    server.answerNext(RawAnswer::json("{}"));
    answerTo(request("/read"));
    answerTo(sent());
    server.answer(RawAnswer::nothing(GetParam().ending));
    EXPECT_EQ(failureOf(sent()), Kind::ConnectionLost);
    server.answer(RawAnswer::json("{}"));
    answerTo(request("/read"));
    EXPECT_EQ(arrivals(), 2);
}

TEST_P(WriteOnce, WhenTheAnswerBreaksOffInItsHead)
{
    server.answer(RawAnswer::json("{}").cut(20, GetParam().ending));
    EXPECT_TRUE(failureOf(sent()).has_value());
    server.answer(RawAnswer::json("{}"));
    answerTo(request("/read"));
    EXPECT_EQ(arrivals(), 1);
}

TEST_P(WriteOnce, ArrivesWholeOnAConnectionOfItsOwn)
{
    server.answer(RawAnswer::json("{}"));
    answerTo(request("/read"));
    EXPECT_EQ(answerTo(sent()).status, 200);
    EXPECT_EQ(server.journal().last().body, GetParam().body);
    EXPECT_EQ(server.journal().last().method, GetParam().verb);
    EXPECT_EQ(server.journal().last().connection, 2);
}

INSTANTIATE_TEST_SUITE_P(Writes, WriteOnce,
                         testing::Values(Write{"POST", "{\"a\":1}", Ending::Close},
                                         Write{"POST", "{\"a\":1}", Ending::Reset},
                                         Write{"PUT", "{\"a\":1}", Ending::Close},
                                         Write{"PUT", "{\"a\":1}", Ending::Reset},
                                         Write{"DELETE", "", Ending::Close},
                                         Write{"DELETE", "", Ending::Reset}));

/// A write must succeed even if the server has closed the connections that reads left open.
TEST_F(SessionTest, AWriteGoesThroughThoughEveryOpenConnectionIsDead)
{
    server.answer(RawAnswer::json("{}"));
    answerTo(request("/read"));
    server.dropConnections(Ending::Reset);
    EXPECT_EQ(answerTo(write("/write", "POST", "{}")).status, 200);
    EXPECT_EQ(server.journal().size(), 2);
}

class ReadOnce : public SessionTest, public testing::WithParamInterface<Ending>
{
protected:
    /// Sends a GET and a search, which is a POST that changes nothing.
    void sendBoth()
    {
        HttpRequest search = request("/search", "POST");
        search.body = "{}";
        EXPECT_EQ(failureOf(request("/read")), Kind::ConnectionLost);
        EXPECT_EQ(failureOf(search), Kind::ConnectionLost);
    }
    qsizetype arrivals(const QByteArray &target) const
    {
        return std::ranges::count(server.journal(), target, &RawRequest::target);
    }
};

TEST_P(ReadOnce, WhenItsConnectionBreaksBeforeTheAnswer)
{
    server.answer(RawAnswer::nothing(GetParam()));
    sendBoth();
    // A further request shows that no other request was still pending.
    server.answer(RawAnswer::json("{}"));
    answerTo(request("/last"));
    EXPECT_EQ(arrivals("/read"), 1);
    EXPECT_EQ(arrivals("/search"), 1);
}

TEST_P(ReadOnce, WhenTheConnectionWasKeptAlive)
{
    server.answer(RawAnswer::json("{}"));
    answerTo(request("/first"));
    server.answerNext(RawAnswer::nothing(GetParam()));
    EXPECT_EQ(failureOf(request("/read")), Kind::ConnectionLost);
    answerTo(request("/last"));
    EXPECT_EQ(server.journal().size(), 3);
}

TEST_P(ReadOnce, WhenTheAnswerBreaksOffInItsHead)
{
    server.answer(RawAnswer::json("{}").cut(20, GetParam()));
    EXPECT_TRUE(failureOf(request("/read")).has_value());
    server.answer(RawAnswer::json("{}"));
    answerTo(request("/last"));
    EXPECT_EQ(arrivals("/read"), 1);
}

INSTANTIATE_TEST_SUITE_P(Endings, ReadOnce, testing::Values(Ending::Close, Ending::Reset));

TEST_F(SessionTest, ALargeWriteArrivesWhole)
{
    server.answer(RawAnswer::json("{}"));
    const QByteArray body(8LL * 1024 * 1024, 'x');
    answerTo(write("/write", "POST", body));
    EXPECT_EQ(server.journal().first().body, body);
}

} // namespace
