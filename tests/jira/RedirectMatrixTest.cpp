#include "ClientTest.h"
#include "http/Origin.h"
#include "http/TransportError.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

/// The target of a redirect, relative to the site.
enum class Target {
    SameHost,
    OtherPort,
    SubDomain,
    OtherHost,
    HttpsToHttp,
    Loop,
    /// A page of the site on which a person signs in, with status 200.
    SignInPage,
    /// The same on the host of a sign-in service.
    SignInService,
};
enum class Asked { Get, Post, Put, Delete, Upload, Download };

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
        case Target::SignInPage:
            return "http://jira.exemple.fr/login.jsp?os_destination=%2Frest";
        case Target::SignInService:
            return "http://connexion.fr/login.jsp?continue=%2Frest";
        }
        return {};
    }
    RawAnswer redirect() const { return RawAnswer::redirect(there(), GetParam().status); }
    RawAnswer answerTo(const RawRequest &request) const
    {
        if (request.target.contains("/login.jsp"))
            return RawAnswer::html("<!doctype html><title>Connexion</title><form></form>");
        return request.target.endsWith("/there") ? RawAnswer::http(200, answerBody()) : redirect();
    }
    QByteArray answerBody() const
    {
        switch (GetParam().asked) {
        case Asked::Get:
            return R"({"accountId":"u1"})";
        case Asked::Post:
            return R"({"id":"1"})";
        case Asked::Put:
        case Asked::Delete:
            return {};
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
        case Asked::Put:
            return failureOf(client->assign(u"ABC-1"_s, std::nullopt));
        case Asked::Delete:
            return failureOf(client->deleteAttachment(u"1"_s));
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

    static bool isRead()
    {
        return GetParam().asked == Asked::Get || GetParam().asked == Asked::Download;
    }
    static bool leadsToAPage()
    {
        return GetParam().target == Target::SignInPage ||
               GetParam().target == Target::SignInService;
    }
    QString expectedFailure() const
    {
        using Kind = TransportError::Kind;
        const auto textOf = [](Kind kind) { return TransportError(kind).message(); };
        const Target target = GetParam().target;
        if (!isRead())
            return textOf(Kind::RedirectedWrite);
        if (leadsToAPage())
            return GetParam().asked == Asked::Get ? u"Réponse Jira illisible : JSON mal formé"_s
                                                  : u"Téléchargement de « a.txt » impossible."_s;
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

class RedirectedDownload : public RedirectMatrix
{
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

TEST_P(RedirectMatrix, AReadFollowsAtMostTenAndAWriteNone)
{
    ask();
    const qsizetype requests = server.journal().size() + secure.journal().size();
    if (!isRead() || GetParam().target == Target::HttpsToHttp)
        EXPECT_EQ(requests, 1);
    else
        EXPECT_EQ(requests, GetParam().target == Target::Loop ? 11 : 2);
}

TEST_P(RedirectedDownload, OnlyAFileIsKept)
{
    const bool isKept = ask().isEmpty();
    QDirIterator files(cache.path(), {u"a.txt"_s}, QDir::Files, QDirIterator::Subdirectories);
    EXPECT_EQ(files.hasNext(), isKept);
}

QList<Case> casesOf(const QList<Asked> &requests)
{
    QList<Case> cases;
    for (const Target target :
         {Target::SameHost, Target::OtherPort, Target::SubDomain, Target::OtherHost,
          Target::HttpsToHttp, Target::Loop, Target::SignInPage, Target::SignInService}) {
        for (const int status : Statuses) {
            for (const Asked asked : requests)
                cases.append({target, status, asked});
        }
    }
    return cases;
}

std::string nameOf(const testing::TestParamInfo<Case> &info)
{
    constexpr const char *targets[] = {"SameHost",    "OtherPort", "SubDomain",  "OtherHost",
                                       "HttpsToHttp", "Loop",      "SignInPage", "SignInService"};
    constexpr const char *asked[] = {"Get", "Post", "Put", "Delete", "Upload", "Download"};
    return std::string(asked[int(info.param.asked)]) + std::to_string(info.param.status) +
           targets[int(info.param.target)];
}

INSTANTIATE_TEST_SUITE_P(All, RedirectMatrix,
                         testing::ValuesIn(casesOf({Asked::Get, Asked::Post, Asked::Put,
                                                    Asked::Delete, Asked::Upload,
                                                    Asked::Download})),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(All, RedirectedDownload, testing::ValuesIn(casesOf({Asked::Download})),
                         nameOf);

} // namespace
