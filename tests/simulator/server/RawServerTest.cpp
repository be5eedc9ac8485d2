#include "simulator/server/RawServer.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Ending = RawAnswer::Ending;

/// Waits for the end of a request; absent if it does not end.
class Exchange
{
public:
    explicit Exchange(const QUrl &url) : m_reply(m_manager.get(QNetworkRequest(url))) {}
    Exchange(const QUrl &url, const QByteArray &body)
        : m_reply(m_manager.post(requestFor(url), body))
    {
    }

    bool ends()
    {
        return QTest::qWaitFor([this] { return m_reply->isFinished(); }, 5000);
    }
    QNetworkReply &reply() { return *m_reply; }

private:
    static QNetworkRequest requestFor(const QUrl &url)
    {
        QNetworkRequest request(url);
        request.setHeader(QNetworkRequest::ContentTypeHeader, u"text/plain"_s);
        return request;
    }

    QNetworkAccessManager m_manager;
    std::unique_ptr<QNetworkReply> m_reply;
};

bool arrives(RawServer &server, qsizetype requests)
{
    return QTest::qWaitFor([&] { return server.journal().size() >= requests; }, 5000);
}

} // namespace

TEST(RawServerTest, TheJournalHasARequestByteForByte)
{
    RawServer server;
    server.answer(RawAnswer::json("{}"));
    Exchange exchange(server.url().resolved(QUrl(u"/rest/x?a=%2B&b=1"_s)), "été");
    ASSERT_TRUE(exchange.ends());
    EXPECT_EQ(exchange.reply().readAll(), "{}");

    ASSERT_EQ(server.journal().size(), 1);
    const RawRequest &request = server.journal().first();
    EXPECT_EQ(request.method, "POST");
    EXPECT_EQ(request.target, "/rest/x?a=%2B&b=1");
    EXPECT_EQ(request.header("content-type"), "text/plain");
    EXPECT_EQ(request.body, "été");
    EXPECT_EQ(request.connection, 1);
    EXPECT_TRUE(request.head().contains("Content-Type: text/plain"));
}

TEST(RawServerTest, QueuedAnswersGoBeforeTheLastingOne)
{
    RawServer server;
    server.answer(RawAnswer::http(500, {}));
    server.answerNext(RawAnswer::http(403, {}));
    Exchange first(server.url());
    ASSERT_TRUE(first.ends());
    Exchange second(server.url());
    ASSERT_TRUE(second.ends());
    const auto status = QNetworkRequest::HttpStatusCodeAttribute;
    EXPECT_EQ(first.reply().attribute(status).toInt(), 403);
    EXPECT_EQ(second.reply().attribute(status).toInt(), 500);
    EXPECT_EQ(server.connections(), 2);
}

TEST(RawServerTest, APortThatIsTakenIsReplacedByAnother)
{
    const RawServer first;
    const RawServer second({}, first.port());
    EXPECT_NE(second.port(), 0);
    EXPECT_NE(second.port(), first.port());
}

TEST(RawServerTest, AResetAfterTheRequestSendsNoByte)
{
    RawServer server;
    server.answer(RawAnswer::nothing(Ending::Reset));
    QTcpSocket socket;
    QByteArray arrived;
    socket.connectToHost(QHostAddress::LocalHost, server.port());
    socket.write("GET / HTTP/1.1\r\n\r\n");
    ASSERT_TRUE(QTest::qWaitFor([&] {
        return socket.state() == QTcpSocket::UnconnectedState && !server.journal().isEmpty();
    }));
    EXPECT_EQ(socket.bytesAvailable(), 0);
    EXPECT_NE(socket.error(), QTcpSocket::UnknownSocketError);
}

TEST(RawServerTest, AnAnswerCutShortArrivesUpToTheCut)
{
    RawServer server;
    server.answer(RawAnswer::http(200, "0123456789").cut(6, Ending::Close));
    Exchange exchange(server.url());
    ASSERT_TRUE(exchange.ends());
    EXPECT_EQ(exchange.reply().error(), QNetworkReply::RemoteHostClosedError);
    EXPECT_EQ(exchange.reply().readAll(), "0123");
}

TEST(RawServerTest, AResetWithinTheBodyLetsThePartBeforeItThrough)
{
    RawServer server;
    server.answer(RawAnswer::http(200, "0123456789").cut(6, Ending::Reset));
    Exchange exchange(server.url());
    ASSERT_TRUE(exchange.ends());
    EXPECT_NE(exchange.reply().error(), QNetworkReply::NoError);
    EXPECT_EQ(exchange.reply().readAll(), "0123");
}

TEST(RawServerTest, AStalledConnectionStaysOpenWithoutAWord)
{
    RawServer server;
    server.answer(RawAnswer::nothing(Ending::Stall));
    Exchange exchange(server.url());
    ASSERT_TRUE(arrives(server, 1));
    EXPECT_FALSE(exchange.reply().isFinished());
    EXPECT_EQ(server.openConnections(), 1);
}

TEST(RawServerTest, AConnectionCanBeClosedBeforeAnyRequest)
{
    RawServer server;
    server.meetConnections(Ending::Close);
    Exchange exchange(server.url());
    ASSERT_TRUE(exchange.ends());
    EXPECT_EQ(exchange.reply().error(), QNetworkReply::RemoteHostClosedError);
    EXPECT_GE(server.connections(), 1);
}

TEST(RawServerTest, ALargeBodyIsSentWhole)
{
    RawServer server;
    server.answer(RawAnswer::large(30 << 20, 30 << 20, "application/json"));
    Exchange exchange(server.url());
    ASSERT_TRUE(exchange.ends());
    EXPECT_EQ(exchange.reply().readAll().size(), 30 << 20);
}

TEST(RawServerTest, AfterItStoppedListeningConnectionsAreRefused)
{
    RawServer server;
    server.stopListening();
    Exchange exchange(server.url());
    ASSERT_TRUE(exchange.ends());
    EXPECT_EQ(exchange.reply().error(), QNetworkReply::ConnectionRefusedError);
}

TEST(RawServerTest, TheRefusingPortGoesToNobodyElse)
{
    RawServer server;
    QTcpSocket other;
    server.stopListening();
    EXPECT_FALSE(
        other.bind(QHostAddress::LocalHost, server.port(), QAbstractSocket::DontShareAddress));
}

TEST(RawServerTest, OneConnectionServesSeveralRequestsUntilItIsDropped)
{
    RawServer server;
    server.answer(RawAnswer::json("{}"));
    QTcpSocket socket;
    socket.connectToHost(QHostAddress::LocalHost, server.port());
    socket.write("GET /a HTTP/1.1\r\n\r\nGET /b HTTP/1.1\r\n\r\n");
    ASSERT_TRUE(arrives(server, 2));
    EXPECT_EQ(server.journal().last().connection, 1);

    server.dropConnections(Ending::Reset);
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return socket.state() == QTcpSocket::UnconnectedState; }, 5000));
    EXPECT_EQ(server.openConnections(), 0);
}

struct Trust
{
    Certificates::Kind kind;
    QNetworkReply::NetworkError error;
    QSslError::SslError reason;
};

class RawServerTrustTest : public testing::TestWithParam<Trust>
{
};

INSTANTIATE_TEST_SUITE_P(
    Certificates, RawServerTrustTest,
    testing::Values(Trust{Certificates::Kind::Good, QNetworkReply::NoError, QSslError::NoError},
                    Trust{Certificates::Kind::OtherHost, QNetworkReply::SslHandshakeFailedError,
                          QSslError::HostNameMismatch},
                    Trust{Certificates::Kind::Expired, QNetworkReply::SslHandshakeFailedError,
                          QSslError::CertificateExpired},
                    Trust{Certificates::Kind::Stranger, QNetworkReply::SslHandshakeFailedError,
                          QSslError::UnableToGetLocalIssuerCertificate}));

TEST_P(RawServerTrustTest, OverTlsOnlyTheGoodCertificateIsTrusted)
{
    const Certificates::TrustedAuthority trusted;
    RawServer server(GetParam().kind);
    server.answer(RawAnswer::json("{}"));
    Exchange exchange(server.url());
    QList<QSslError> errors;
    QObject::connect(&exchange.reply(), &QNetworkReply::sslErrors, &exchange.reply(),
                     [&](const QList<QSslError> &found) { errors = found; });
    ASSERT_TRUE(exchange.ends());
    EXPECT_EQ(exchange.reply().error(), GetParam().error);
    EXPECT_EQ(errors.value(0).error(), GetParam().reason);
    EXPECT_EQ(server.journal().isEmpty(), GetParam().error != QNetworkReply::NoError);
}
