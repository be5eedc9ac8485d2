#include "SessionTest.h"

namespace {

using Kind = TransportError::Kind;

class TlsTest : public SessionTest
{
protected:
    explicit TlsTest(Certificates::Kind certificate = Certificates::Kind::Good)
        : SessionTest(certificate)
    {
        server.answer(RawAnswer::json("{}"));
    }

    Certificates::TrustedAuthority trusted;
};

struct OtherHost : TlsTest
{
    OtherHost() : TlsTest(Certificates::Kind::OtherHost) {}
};
struct Expired : TlsTest
{
    Expired() : TlsTest(Certificates::Kind::Expired) {}
};
struct Stranger : TlsTest
{
    Stranger() : TlsTest(Certificates::Kind::Stranger) {}
};
struct Untrusted : SessionTest
{
    Untrusted() : SessionTest(Certificates::Kind::Good) {}
};

TEST_F(TlsTest, ATrustedCertificateIsAccepted)
{
    EXPECT_EQ(answerTo(request("/a")).status, 200);
    EXPECT_EQ(answerTo(write("/a", "POST", "{}")).status, 200);
    EXPECT_EQ(server.journal().last().header("Authorization"), Secret);
}

TEST_F(TlsTest, AWriteReachesTheServerOnceHereToo)
{
    answerTo(request("/read"));
    for (const auto ending : {RawAnswer::Ending::Close, RawAnswer::Ending::Reset}) {
        server.clearJournal();
        server.answer(RawAnswer::nothing(ending));
        EXPECT_EQ(failureOf(write("/a", "POST", "{}")), Kind::ConnectionLost);
        EXPECT_EQ(failureOf(write("/a", "PUT", "{}")), Kind::ConnectionLost);
        server.answer(RawAnswer::json("{}"));
        answerTo(request("/read"));
        EXPECT_EQ(server.journal().size(), 3);
    }
}

TEST_F(OtherHost, ACertificateOfAnotherHostIsRefused)
{
    EXPECT_EQ(failureOf(request("/a")), Kind::WrongHost);
    EXPECT_EQ(failureOf(write("/a", "POST", "{}")), Kind::WrongHost);
    EXPECT_TRUE(server.journal().isEmpty());
}

TEST_F(Expired, AnExpiredCertificateIsRefused)
{
    EXPECT_EQ(failureOf(request("/a")), Kind::CertificateExpired);
    EXPECT_TRUE(server.journal().isEmpty());
}

TEST_F(Stranger, ACertificateOfAnUnknownAuthorityIsRefused)
{
    EXPECT_EQ(failureOf(request("/a")), Kind::UnknownAuthority);
    EXPECT_TRUE(server.journal().isEmpty());
}

TEST_F(Untrusted, OnlyAuthoritiesThatTheSystemTrustsCount)
{
    server.answer(RawAnswer::json("{}"));
    EXPECT_EQ(failureOf(request("/a")), Kind::UnknownAuthority);
    EXPECT_TRUE(server.journal().isEmpty());
}

TEST_F(TlsTest, AServerThatSpeaksNoTLSIsRefused)
{
    RawServer plain;
    HttpRequest sent = request("/a");
    sent.url.setPort(plain.port());
    plain.meetConnections(RawAnswer::Ending::Close);
    EXPECT_TRUE(failureOf(sent).has_value());
    EXPECT_TRUE(plain.journal().isEmpty());
}

} // namespace
