#include "simulator/SiteRest.h"
#include "simulator/SiteSeed.h"
#include "simulator/server/AnswerForm.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QDateTime now({2026, 10, 29}, {13, 32}, Qt::UTC);

/// Sends requests to a site under conditions that a test sets.
class SiteConditionsTest : public testing::Test
{
protected:
    RawRequest request(const QByteArray &method, const QByteArray &target,
                       const QByteArray &body = {}) const
    {
        return {.method = method,
                .target = target,
                .headers = {{"Authorization", authorization}, {"Content-Type", "application/json"}},
                .body = body};
    }
    QByteArray ask(const QByteArray &method, const QByteArray &target, const QByteArray &body = {})
    {
        return answerOf(site, request(method, target, body)).bytes;
    }
    static int statusOf(const QByteArray &bytes) { return bytes.split(' ').value(1).toInt(); }
    static QJsonObject jsonOf(const QByteArray &bytes)
    {
        return QJsonDocument::fromJson(bytes.mid(bytes.indexOf("\r\n\r\n") + 4)).object();
    }
    QByteArray search()
    {
        return ask("POST", "/rest/api/3/search/jql", R"({"jql":"created >= -300d"})");
    }

    Site site = SiteSeed::company(60, now);
    QByteArray authorization = "Bearer " + site.personalToken.toUtf8();
};

TEST_F(SiteConditionsTest, BeyondTheLimitOfRequestsTheClientIsToldToWait)
{
    site.requestsLeft = 1;
    EXPECT_EQ(statusOf(ask("GET", "/rest/api/3/myself")), 200);
    const QByteArray refused = ask("GET", "/rest/api/3/myself");
    EXPECT_EQ(statusOf(refused), 429);
    EXPECT_TRUE(refused.contains("Retry-After: 30\r\n"));
}

TEST_F(SiteConditionsTest, AnybodyIsAnsweredOnlyWhereTheSiteDoesSo)
{
    authorization = "Bearer expired";
    EXPECT_EQ(statusOf(search()), 401);
    site.anybody = Site::Anybody::Answered;
    EXPECT_EQ(statusOf(search()), 200);
    EXPECT_TRUE(jsonOf(search()).value("issues"_L1).toArray().isEmpty());
    EXPECT_FALSE(search().contains("LoginReason"));
    EXPECT_EQ(statusOf(ask("GET", "/rest/api/3/myself")), 401);
    site.anybody = Site::Anybody::AnsweredAndNamed;
    EXPECT_TRUE(search().contains("X-Seraph-LoginReason: AUTHENTICATED_FAILED\r\n"));
}

TEST_F(SiteConditionsTest, APictureOfAProjectNeedsTheCredentials)
{
    const QJsonObject project = jsonOf(ask("GET", "/rest/api/3/project/PORT"));
    const QUrl address(project["avatarUrls"_L1]["48x48"_L1].toString());
    EXPECT_EQ(address.host(), site.address.host());
    const QByteArray target = address.toEncoded(QUrl::RemoveScheme | QUrl::RemoveAuthority);
    EXPECT_TRUE(ask("GET", target).contains("image/png"));
    authorization = "Bearer expired";
    EXPECT_EQ(statusOf(ask("GET", target)), 401);
}

TEST_F(SiteConditionsTest, AMovedIssueIsFoundByItsFormerKeys)
{
    SiteIssue &issue = *site.issue(site.issues().first().key);
    const QString first = issue.key;
    const QString target = first.startsWith("PORT-"_L1) ? u"FACT"_s : u"PORT"_s;
    site.move(issue, target);
    const QString second = issue.key;
    site.move(issue, target);
    EXPECT_NE(second, issue.key);
    for (const QString &key : {first, second, issue.key}) {
        const QByteArray answer = ask("GET", "/rest/api/3/issue/" + key.toLatin1());
        EXPECT_EQ(jsonOf(answer).value("key"_L1), issue.key);
    }
}

TEST_F(SiteConditionsTest, TextsHaveALimit)
{
    const QByteArray key = site.issues().first().key.toLatin1();
    const auto document = [](int length) {
        return R"({"type":"doc","version":1,"content":[{"type":"paragraph","content":[)"
               R"({"type":"text","text":")" +
               QByteArray(length, 'a') + R"("}]}]})";
    };
    const auto describe = [&](int length) {
        return statusOf(ask("PUT", "/rest/api/3/issue/" + key,
                            R"({"fields":{"description":)" + document(length) + "}}"));
    };
    const auto comment = [&](int length) {
        return statusOf(ask("POST", "/rest/api/3/issue/" + key + "/comment",
                            R"({"body":)" + document(length) + "}"));
    };
    EXPECT_EQ(describe(32767), 204);
    EXPECT_EQ(describe(32768), 400);
    EXPECT_EQ(comment(32767), 201);
    EXPECT_EQ(comment(32768), 400);
}

TEST_F(SiteConditionsTest, TwoSitesGiveTheSameNumbers)
{
    Site other = SiteSeed::company(60, now);
    const auto attached = [](Site &site) {
        return site.attach(*site.issue(site.issues().first().key), {.filename = u"a.txt"_s}).id;
    };
    EXPECT_EQ(attached(site), attached(other));
}

TEST_F(SiteConditionsTest, DataCenterHasVersion2Only)
{
    site.edition = Site::Edition::DataCenter;
    const QByteArray refused = ask("GET", "/rest/api/3/myself");
    EXPECT_EQ(statusOf(refused), 404);
    EXPECT_TRUE(jsonOf(refused).value("message"_L1).toString().startsWith("null for uri: "_L1));

    const QJsonObject myself = jsonOf(ask("GET", "/rest/api/2/myself"));
    EXPECT_EQ(myself.value("name"_L1), u"camille.rousseau"_s);
    EXPECT_FALSE(myself.contains("accountId"_L1));
    EXPECT_EQ(jsonOf(ask("GET", "/rest/api/2/serverInfo")).value("deploymentType"_L1), u"Server"_s);

    const QByteArray query = R"({"jql":"created >= -300d","startAt":50,"maxResults":20})";
    const QJsonObject page = jsonOf(ask("POST", "/rest/api/2/search", query));
    EXPECT_EQ(page.value("total"_L1), 60);
    EXPECT_EQ(page.value("issues"_L1).toArray().size(), 10);

    const QByteArray key = site.issues().first().key.toLatin1();
    const QJsonObject issue = jsonOf(ask("GET", "/rest/api/2/issue/" + key));
    EXPECT_TRUE(issue["fields"_L1]["description"_L1].isString());

    authorization = "Bearer expired";
    EXPECT_EQ(statusOf(ask("GET", "/rest/api/2/myself")), 401);
}

TEST_F(SiteConditionsTest, AnAnswerInAnotherFormSaysSo)
{
    RawRequest accepting = request("GET", "/rest/api/3/myself");
    const RawAnswer plain = answerOf(site, accepting);
    EXPECT_FALSE(inForm(plain, AnswerForm::Packed, accepting).bytes.contains("gzip"));
    accepting.headers.emplaceBack("Accept-Encoding", "gzip");
    EXPECT_EQ(inForm(plain, AnswerForm::Plain, accepting).bytes, plain.bytes);
    const QByteArray both = inForm(plain, AnswerForm::PackedInChunks, accepting).bytes;
    EXPECT_TRUE(both.contains("Content-Encoding: gzip\r\n"));
    EXPECT_TRUE(both.contains("Transfer-Encoding: chunked\r\n"));
    EXPECT_FALSE(both.contains("Content-Length"));
    EXPECT_TRUE(both.endsWith("\r\n0\r\n\r\n"));
    const RawAnswer empty = RawAnswer::http(204, {});
    EXPECT_EQ(inForm(empty, AnswerForm::PackedInChunks, accepting).bytes, empty.bytes);
}

} // namespace
