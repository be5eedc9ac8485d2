#include "http/Redirects.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using Kind = TransportError::Kind;

HttpRequest request(const QByteArray &verb, const QString &url = u"https://site.fr/a/b?c=1"_s)
{
    HttpRequest result{
        .verb = verb, .headers = {{"Accept", "application/json"}}, .body = {}, .saveAs = {}};
    result.url = QUrl(url);
    if (verb == "POST" || verb == "PUT") {
        result.body = "{}";
        result.headers.append(HttpHeader{"Content-Type", "application/json"});
    }
    return result;
}

QString addressAfter(const QByteArray &location)
{
    const auto next = Redirects::next(request("GET"), 302, location);
    return next ? next->url.toString(QUrl::FullyEncoded) : QString();
}

std::optional<Kind> refusal(const HttpRequest &request, int status, const QByteArray &location)
{
    const auto next = Redirects::next(request, status, location);
    return next ? std::nullopt : std::optional(next.error());
}

TEST(Redirects, FiveStatusesWithALocationAreSome)
{
    for (const int status : {301, 302, 303, 307, 308}) {
        EXPECT_TRUE(Redirects::isRedirect(status, "/a"));
        EXPECT_FALSE(Redirects::isRedirect(status, {}));
    }
    for (const int status : {200, 201, 300, 304, 305, 306, 309, 404})
        EXPECT_FALSE(Redirects::isRedirect(status, "/a")) << status;
}

TEST(Redirects, ALocationMayBeRelative)
{
    EXPECT_EQ(addressAfter("d"), u"https://site.fr/a/d"_s);
    EXPECT_EQ(addressAfter("/d?e=%2B"), u"https://site.fr/d?e=%2B"_s);
    EXPECT_EQ(addressAfter("//other.fr/d"), u"https://other.fr/d"_s);
    EXPECT_EQ(addressAfter("https://other.fr:8443/d#part"), u"https://other.fr:8443/d"_s);
}

struct Method
{
    const char *verb;
    int status;
    const char *then;
};

class Methods : public testing::TestWithParam<Method>
{
};

TEST_P(Methods, GoOnAsTheStatusSays)
{
    const HttpRequest before = request(GetParam().verb);
    const auto next = Redirects::next(before, GetParam().status, "/d");
    ASSERT_TRUE(next);
    EXPECT_EQ(next->verb, GetParam().then);
    const bool isSame = before.verb == next->verb;
    EXPECT_EQ(next->body, isSame ? before.body : std::nullopt);
    EXPECT_EQ(next->headers, isSame ? before.headers : request("GET").headers);
    EXPECT_EQ(next->purpose, before.purpose);
}

INSTANTIATE_TEST_SUITE_P(All, Methods,
                         testing::Values(Method{"GET", 301, "GET"}, Method{"GET", 302, "GET"},
                                         Method{"GET", 303, "GET"}, Method{"GET", 307, "GET"},
                                         Method{"GET", 308, "GET"}, Method{"POST", 301, "GET"},
                                         Method{"POST", 302, "GET"}, Method{"POST", 303, "GET"},
                                         Method{"POST", 307, "POST"}, Method{"POST", 308, "POST"},
                                         Method{"PUT", 301, "PUT"}, Method{"PUT", 302, "PUT"},
                                         Method{"PUT", 303, "GET"}, Method{"PUT", 307, "PUT"},
                                         Method{"PUT", 308, "PUT"}, Method{"DELETE", 302, "DELETE"},
                                         Method{"DELETE", 303, "GET"},
                                         Method{"DELETE", 308, "DELETE"}));

TEST(Redirects, HttpsIsNeverLeft)
{
    EXPECT_EQ(refusal(request("GET"), 302, "http://site.fr/d"), Kind::UnsafeRedirect);
    EXPECT_EQ(refusal(request("GET"), 302, "ftp://site.fr/d"), Kind::UnsafeRedirect);
    EXPECT_EQ(refusal(request("GET"), 302, "file:///etc/passwd"), Kind::UnsafeRedirect);
}

TEST(Redirects, HttpMayBecomeHttps)
{
    const auto next =
        Redirects::next(request("GET", u"http://site.fr/a"_s), 301, "https://site.fr/a");
    ASSERT_TRUE(next);
    EXPECT_EQ(next->url, QUrl(u"https://site.fr/a"_s));
}

TEST(Redirects, OnlyHttpIsFollowed)
{
    const HttpRequest plain = request("GET", u"http://site.fr/a"_s);
    for (const char *location : {"file:///etc/passwd", "ftp://site.fr/", "data:,x", "http://"})
        EXPECT_EQ(refusal(plain, 302, location), Kind::Broken) << location;
}

TEST(Redirects, AWriteFollowsNone)
{
    for (const char *verb : {"POST", "PUT", "DELETE"}) {
        HttpRequest change = request(verb);
        change.purpose = HttpRequest::Purpose::Write;
        for (const int status : {301, 302, 303, 307, 308}) {
            EXPECT_EQ(refusal(change, status, "/d"), Kind::RedirectedWrite) << verb << status;
            EXPECT_EQ(refusal(change, status, "https://other.fr/"), Kind::RedirectedWrite);
        }
    }
}

TEST(Redirects, AMethodThatMayChangeSomethingGoesToNoOtherOrigin)
{
    EXPECT_EQ(refusal(request("DELETE"), 307, "https://other.fr/"), Kind::ForeignRedirect);
    EXPECT_EQ(refusal(request("DELETE"), 302, "https://other.fr/"), Kind::ForeignRedirect);
    EXPECT_EQ(refusal(request("HEAD"), 302, "https://other.fr/"), std::nullopt);
}

TEST(Redirects, ABodyGoesToNoOtherOrigin)
{
    for (const char *location :
         {"https://other.fr/", "https://site.fr:444/", "https://sub.site.fr/"}) {
        EXPECT_EQ(refusal(request("POST"), 307, location), Kind::ForeignRedirect) << location;
        EXPECT_EQ(refusal(request("PUT"), 302, location), Kind::ForeignRedirect) << location;
        EXPECT_EQ(refusal(request("POST"), 302, location), std::nullopt) << location;
    }
    EXPECT_EQ(refusal(request("POST"), 307, "https://SITE.fr:443/d"), std::nullopt);
}

} // namespace
