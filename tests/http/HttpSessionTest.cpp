#include "SessionTest.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Ending = RawAnswer::Ending;
using Kind = TransportError::Kind;

using HttpSessionTest = SessionTest;

TEST_F(HttpSessionTest, BringsTheAnswerOfAnyStatus)
{
    server.answerNext(
        RawAnswer::http(200, "{}", {{"Content-Type", "Application/JSON; charset=utf-8"}}));
    server.answerNext(RawAnswer::http(404, "nothing here"));
    const HttpAnswer found = answerTo(request("/a"));
    EXPECT_EQ(found.status, 200);
    EXPECT_EQ(found.mediaType, "application/json");
    EXPECT_EQ(found.body, "{}");
    const HttpAnswer missing = answerTo(request("/b"));
    EXPECT_EQ(missing.status, 404);
    EXPECT_EQ(missing.body, "nothing here");
}

TEST_F(HttpSessionTest, SendsVerbPathHeadersAndBodyAsTheyAre)
{
    server.answer(RawAnswer::json("{}"));
    HttpRequest sent = write("/a%2Fb?q=%2B%2541%26%23%C3%A9", "PUT", "{\"a\":1}");
    sent.headers = {{"Accept", "application/json"}, {"Content-Type", "application/json"}};
    answerTo(sent);
    ASSERT_EQ(server.journal().size(), 1);
    const RawRequest &seen = server.journal().first();
    EXPECT_EQ(seen.method, "PUT");
    EXPECT_EQ(seen.target, "/a%2Fb?q=%2B%2541%26%23%C3%A9");
    EXPECT_EQ(seen.header("Accept"), "application/json");
    EXPECT_EQ(seen.header("Content-Type"), "application/json");
    EXPECT_EQ(seen.header("Authorization"), Secret);
    EXPECT_EQ(seen.body, "{\"a\":1}");
}

TEST_F(HttpSessionTest, NamesItselfAndNoBrowser)
{
    server.answer(RawAnswer::json("{}"));
    answerTo(request("/a"));
    EXPECT_EQ(server.journal().first().header("User-Agent"), "Velmora");
}

TEST_F(HttpSessionTest, ReadsShareAConnection)
{
    server.answer(RawAnswer::json("{}"));
    answerTo(request("/a"));
    answerTo(request("/b"));
    EXPECT_EQ(server.connections(), 1);
}

TEST_F(HttpSessionTest, AnAnswerToOneIsNoAnswerToAnother)
{
    server.answerBy([](const RawRequest &request) { return RawAnswer::http(200, request.target); });
    QList<TaskResult<HttpAnswer>> results;
    for (int i = 0; i < 20; ++i)
        results.append(
            TaskResult(session->send(request(("/" + QByteArray::number(i)).constData()))));
    ASSERT_TRUE(runUntil([&] {
        return std::ranges::all_of(results, [](const auto &result) { return result.isDone(); });
    }));
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(results[i].value().body, "/" + QByteArray::number(i));
}

TEST_F(HttpSessionTest, KeepsNoCookies)
{
    server.answer(RawAnswer::http(200, {}, {{"Set-Cookie", "session=1"}}));
    answerTo(request("/a"));
    answerTo(request("/a"));
    EXPECT_TRUE(server.journal().last().header("Cookie").isNull());
}

TEST_F(HttpSessionTest, KeepsNoAnswers)
{
    server.answer(
        RawAnswer::http(200, "x", {{"Cache-Control", "max-age=3600"}, {"ETag", "\"1\""}}));
    answerTo(request("/a"));
    answerTo(request("/a"));
    EXPECT_EQ(server.journal().size(), 2);
    EXPECT_TRUE(server.journal().last().header("If-None-Match").isNull());
}

class Challenge : public HttpSessionTest, public testing::WithParamInterface<const char *>
{
};

TEST_P(Challenge, IsReadOnce)
{
    server.answer(RawAnswer::http(401, "no", {{"WWW-Authenticate", GetParam()}}));
    HttpRequest sent = request("/a");
    EXPECT_EQ(answerTo(sent).status, 401);
    EXPECT_EQ(answerTo(write("/b", "POST", "{}")).status, 401);
    EXPECT_EQ(server.journal().size(), 2);
}

INSTANTIATE_TEST_SUITE_P(Challenges, Challenge,
                         testing::Values("Basic realm=\"x\"", "Digest realm=\"x\", nonce=\"1\"",
                                         "NTLM", "Negotiate", "Bearer", "OAuth realm=\"x\""));

TEST_F(HttpSessionTest, ANameInTheAddressAnswersNoChallenge)
{
    server.answer(RawAnswer::http(401, {}, {{"WWW-Authenticate", "Basic realm=\"x\""}}));
    HttpRequest sent = request("/a");
    sent.url.setUserName(u"paul"_s);
    sent.url.setPassword(u"secret"_s);
    EXPECT_EQ(answerTo(sent).status, 401);
    ASSERT_EQ(server.journal().size(), 1);
}

TEST_F(HttpSessionTest, AnAddressWithANameGetsNoCredentials)
{
    server.answer(RawAnswer::json("{}"));
    HttpRequest sent = request("/a");
    sent.url.setUserName(u"alice"_s);
    answerTo(sent);
    EXPECT_TRUE(server.journal().first().header("Authorization").isNull());
}

TEST_F(HttpSessionTest, AnAddressThatIsNoHTTPIsNotOpened)
{
    HttpRequest sent = request("/a");
    for (const QString &address :
         {u"file:///etc/hostname"_s, u"data:,x"_s, u"qrc:/x"_s, u"ftp://127.0.0.1/"_s, QString()}) {
        sent.url = QUrl(address);
        EXPECT_EQ(failureOf(sent), Kind::NoWebAddress) << address.toStdString();
    }
}

TEST_F(HttpSessionTest, AStopEndsARequestAtOnce)
{
    server.answer(RawAnswer::nothing(Ending::Stall));
    std::stop_source stop;
    const TaskResult<HttpAnswer> result(session->send(request("/a"), stop.get_token()));
    ASSERT_TRUE(arrive(1));
    EXPECT_FALSE(result.isDone());
    stop.request_stop();
    EXPECT_TRUE(result.isDone());
    EXPECT_THROW(result.value(), Cancelled);
    EXPECT_TRUE(runUntil([&] { return server.openConnections() == 0; }));
}

TEST_F(HttpSessionTest, AfterAStopNothingIsSent)
{
    std::stop_source stop;
    stop.request_stop();
    const TaskResult<HttpAnswer> result(session->send(request("/a"), stop.get_token()));
    EXPECT_THROW(result.value(), Cancelled);
    EXPECT_EQ(server.connections(), 0);
}

TEST_F(HttpSessionTest, TheEndOfTheSessionEndsWhatIsUnderWay)
{
    server.answer(RawAnswer::nothing(Ending::Stall));
    const TaskResult<HttpAnswer> result(session->send(request("/a")));
    ASSERT_TRUE(arrive(1));
    session.reset();
    EXPECT_FALSE(result.isDone());
    ASSERT_TRUE(runUntil([&] { return result.isDone(); }));
    EXPECT_THROW(result.value(), Cancelled);
    EXPECT_TRUE(runUntil([&] { return server.openConnections() == 0; }));
    EXPECT_EQ(clock.pending(), 0);
}

TEST_F(HttpSessionTest, AClosedSessionSendsNothing)
{
    session->close();
    const TaskResult<HttpAnswer> result(session->send(request("/a")));
    EXPECT_THROW(result.value(), Cancelled);
    EXPECT_EQ(server.connections(), 0);
}

} // namespace
