#include "ClientTest.h"
#include "http/Origin.h"
#include "http/TransportError.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

/// The target of a redirect, relative to the site.
enum class Target { SameHost, OtherPort, SubDomain, OtherHost, HttpsToHttp, Loop };
enum class Asked { Get, Post, Upload, Download };

constexpr int Statuses[] = {301, 302, 303, 307, 308};

struct Case
{
    Target target = Target::SameHost;
    int status = 302;
    Asked asked = Asked::Get;
};

/// Lets a test use a site with any host name: requests are sent through a proxy, which is the test's server. The server
/// responds for every host, and its journal contains complete addresses.
class Proxied
{
public:
    explicit Proxied(const RawServer &server)
    {
        qputenv("http_proxy", server.url().toEncoded());
        qputenv("no_proxy", {});
    }
    ~Proxied()
    {
        qunsetenv("http_proxy");
        qunsetenv("no_proxy");
    }
    Proxied(const Proxied &) = delete;
    Proxied &operator=(const Proxied &) = delete;
};

class RedirectMatrix : public ClientTest, public testing::WithParamInterface<Case>
{
protected:
    RedirectMatrix()
    {
        connectAs({site(), u"alice@exemple.fr"_s, u"s3cret"_s});
        server.answerBy([this](const RawRequest &request) { return answerTo(request); });
        secure.answer(redirect());
        upload.setFileName(cache.filePath(u"note.txt"_s));
        upload.open(QIODevice::WriteOnly);
    }

    QUrl site() const
    {
        return GetParam().target == Target::HttpsToHttp ? secure.url()
                                                        : QUrl(u"http://jira.exemple.fr"_s);
    }
    /// The address that the redirect leads to. In a loop, this address redirects to itself.
    QByteArray there() const
    {
        switch (GetParam().target) {
        case Target::SameHost:
            return "http://jira.exemple.fr/there";
        case Target::OtherPort:
            return "http://jira.exemple.fr:8080/there";
        case Target::SubDomain:
            return "http://media.jira.exemple.fr/there";
        case Target::OtherHost:
        case Target::HttpsToHttp:
            return "http://autre.fr/there";
        case Target::Loop:
            return "http://jira.exemple.fr/rest/loop";
        }
        return {};
    }
    RawAnswer redirect() const { return RawAnswer::redirect(there(), GetParam().status); }
    RawAnswer answerTo(const RawRequest &request) const
    {
        return request.target.endsWith("/there") ? RawAnswer::http(200, answerBody()) : redirect();
    }
    QByteArray answerBody() const
    {
        switch (GetParam().asked) {
        case Asked::Get:
            return R"({"accountId":"u1"})";
        case Asked::Post:
            return R"({"id":"1"})";
        case Asked::Upload:
            return "[]";
        case Asked::Download:
            return "content";
        }
        return {};
    }

    /// The text that the user reads after the request.
    QString ask()
    {
        switch (GetParam().asked) {
        case Asked::Get:
            return failureOf(client->currentUser());
        case Asked::Post:
            return failureOf(client->addComment(u"ABC-1"_s, ADFNode(), false));
        case Asked::Upload:
            return failureOf(
                client->uploadAttachments(u"ABC-1"_s, {QUrl::fromLocalFile(upload.fileName())}));
        case Asked::Download: {
            QUrl content = site();
            content.setPath(u"/rest/api/3/attachment/content/1"_s);
            return failureOf(client->download({.id = u"1"_s,
                                               .filename = u"a.txt"_s,
                                               .mimeType = u"text/plain"_s,
                                               .created = {},
                                               .author = {},
                                               .contentURL = content,
                                               .thumbnailURL = {}}));
        }
        }
        return {};
    }

    QString expectedFailure() const
    {
        using Kind = TransportError::Kind;
        const auto textOf = [](Kind kind) { return TransportError(kind).message(); };
        const auto [target, status, asked] = GetParam();
        Q_UNUSED(status)
        if (asked == Asked::Post || asked == Asked::Upload)
            return textOf(Kind::RedirectedWrite);
        if (target == Target::HttpsToHttp)
            return textOf(Kind::UnsafeRedirect);
        if (target == Target::Loop)
            return textOf(Kind::TooManyRedirects);
        return {};
    }

    Certificates::TrustedAuthority trusted;
    RawServer secure{Certificates::Kind::Good};
    Proxied proxied{server};
    QFile upload;
};

TEST_P(RedirectMatrix, TheHeaderReachesNoOtherOrigin)
{
    EXPECT_EQ(ask(), expectedFailure());
    const QByteArray secret = client->credentials().authorizationHeader();
    for (const RawRequest &request : secure.journal())
        EXPECT_EQ(request.header("Authorization"), secret);
    for (const RawRequest &request : server.journal()) {
        const bool isAtHome = Origin::of(QUrl::fromEncoded(request.target)) == Origin::of(site());
        EXPECT_EQ(request.header("Authorization"), isAtHome ? secret : QByteArray())
            << request.target.toStdString();
        EXPECT_TRUE(request.header("Cookie").isNull());
        if (!isAtHome) {
            EXPECT_TRUE(request.body.isEmpty()) << request.target.toStdString();
            EXPECT_FALSE(request.head().contains(secret));
        }
    }
}

TEST_P(RedirectMatrix, AtMostTenAreFollowed)
{
    ask();
    const qsizetype requests = server.journal().size() + secure.journal().size();
    const QString failure = expectedFailure();
    const bool isRead = GetParam().asked == Asked::Get || GetParam().asked == Asked::Download;
    if (GetParam().target == Target::Loop && isRead)
        EXPECT_EQ(requests, 11);
    else
        EXPECT_EQ(requests, failure.isEmpty() ? 2 : 1);
}

QList<Case> allCases()
{
    QList<Case> cases;
    for (const Target target : {Target::SameHost, Target::OtherPort, Target::SubDomain,
                                Target::OtherHost, Target::HttpsToHttp, Target::Loop}) {
        for (const int status : Statuses) {
            for (const Asked asked : {Asked::Get, Asked::Post, Asked::Upload, Asked::Download})
                cases.append({target, status, asked});
        }
    }
    return cases;
}

std::string nameOf(const testing::TestParamInfo<Case> &info)
{
    constexpr const char *targets[] = {"SameHost",  "OtherPort",   "SubDomain",
                                       "OtherHost", "HttpsToHttp", "Loop"};
    constexpr const char *asked[] = {"Get", "Post", "Upload", "Download"};
    return std::string(asked[int(info.param.asked)]) + std::to_string(info.param.status) +
           targets[int(info.param.target)];
}

INSTANTIATE_TEST_SUITE_P(All, RedirectMatrix, testing::ValuesIn(allCases()), nameOf);

} // namespace
