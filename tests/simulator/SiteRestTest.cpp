#include "simulator/SiteRest.h"

#include "simulator/SiteSeed.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QDateTime now({2026, 10, 29}, {13, 32}, Qt::UTC);

/// Sends requests to a site with 300 issues, with the right credentials unless a test specifies others.
class SiteRestTest : public testing::Test
{
protected:
    struct Reply
    {
        int status = 0;
        QByteArray head;
        QJsonDocument json;

        QJsonObject object() const { return json.object(); }
    };

    Reply ask(const QByteArray &method, const QByteArray &path, const QByteArray &body = {})
    {
        return ask(RawRequest{
            .method = method,
            .target = "/rest/api/3/" + path,
            .headers = {{"Authorization", authorization}, {"Content-Type", "application/json"}},
            .body = body});
    }

    Reply ask(const RawRequest &request)
    {
        const QByteArray bytes = answerOf(site, request).bytes;
        const qsizetype end = bytes.indexOf("\r\n\r\n");
        return {bytes.split(' ').value(1).toInt(), bytes.first(end),
                QJsonDocument::fromJson(bytes.sliced(end + 4))};
    }

    Reply search(const QByteArray &members)
    {
        return ask("POST", "search/jql", '{' + members + '}');
    }

    QJsonObject errorsOf(const Reply &reply)
    {
        return reply.object().value("errors"_L1).toObject();
    }
    const SiteIssue &first() { return site.issues().first(); }
    QByteArray issuePath(const QByteArray &rest = {})
    {
        return "issue/" + first().key.toLatin1() + rest;
    }

    Site site = SiteSeed::company(300, now);
    QByteArray authorization = "Basic " + (site.email + u':' + site.token).toUtf8().toBase64();
};

TEST_F(SiteRestTest, TheRightPairSignsIn)
{
    const Reply reply = ask("GET", "myself");
    EXPECT_EQ(reply.status, 200);
    EXPECT_EQ(reply.object().value("displayName"_L1), u"Camille Rousseau"_s);
}

TEST_F(SiteRestTest, ThePersonalTokenAloneSignsIn)
{
    authorization = "Bearer jeton-de-test";
    EXPECT_EQ(ask("GET", "myself").status, 200);
}

TEST_F(SiteRestTest, AnyOtherAuthorizationIsRefusedWithAChallenge)
{
    for (const QByteArray &wrong :
         {QByteArray(), QByteArray("Basic " + QByteArray("a:b").toBase64()), QByteArray("Bearer x"),
          QByteArray("jeton-de-test")}) {
        authorization = wrong;
        const Reply reply = ask("GET", "myself");
        EXPECT_EQ(reply.status, 401);
        EXPECT_TRUE(reply.head.contains("WWW-Authenticate"));
    }
}

TEST_F(SiteRestTest, AnUnknownPathAndAWrongMethodAreNotFound)
{
    EXPECT_EQ(ask("GET", "nothing").status, 404);
    EXPECT_EQ(ask("DELETE", "myself").status, 404);
    EXPECT_EQ(ask("GET", "issue/ZZ-1").status, 404);
}

TEST_F(SiteRestTest, ASearchGoesOnPageByPageUntilTheLast)
{
    QStringList keys;
    QByteArray token;
    int pages = 0;
    for (bool isLast = false; !isLast; ++pages) {
        const Reply reply =
            search(R"("jql":"created >= -300d ORDER BY created DESC","maxResults":100)" + token);
        ASSERT_EQ(reply.status, 200);
        for (const QJsonValue issue : reply.object().value("issues"_L1).toArray())
            keys += issue["key"_L1].toString();
        isLast = reply.object().value("isLast"_L1).toBool();
        EXPECT_EQ(reply.object().contains("nextPageToken"_L1), !isLast);
        token = R"(,"nextPageToken":")" +
                reply.object().value("nextPageToken"_L1).toString().toLatin1() + '"';
    }
    EXPECT_EQ(pages, 3);
    EXPECT_EQ(keys.size(), 300);
    EXPECT_EQ(keys.removeDuplicates(), 0);
}

TEST_F(SiteRestTest, AMadeUpPageTokenAndUnknownMembersAreRefused)
{
    EXPECT_EQ(search(R"("jql":"project = PORT","nextPageToken":"abc")").status, 400);
    EXPECT_EQ(search(R"("jql":"project = PORT","startAt":0)").status, 400);
    EXPECT_EQ(search(R"("jql":"project = PORT","expand":["changelog"])").status, 400);
    EXPECT_EQ(search(R"("jql":"project = PORT","maxResults":0)").status, 400);
    EXPECT_EQ(search(R"("fields":[])").status, 400);
}

TEST_F(SiteRestTest, ASearchBringsTheFieldsAskedForAndTheHistoryOnDemand)
{
    const auto issue = [&](const QByteArray &more) {
        return search(R"("jql":"created >= -300d","fields":["summary","nonsense"])" + more)
            .object()["issues"_L1][0]
            .toObject();
    };
    EXPECT_EQ(issue({})["fields"_L1].toObject().keys(), QStringList{u"summary"_s});
    EXPECT_FALSE(issue({}).contains("changelog"_L1));
    EXPECT_TRUE(issue(R"(,"expand":"changelog")").contains("changelog"_L1));
}

TEST_F(SiteRestTest, ProjectsComeByNameInPages)
{
    const QJsonObject page =
        ask("GET", "project/search?maxResults=4&orderBy=name&startAt=4").object();
    EXPECT_EQ(page.value("values"_L1).toArray().size(), 2);
    EXPECT_EQ(page.value("isLast"_L1), true);
    const QJsonObject front = ask("GET", "project/search?maxResults=4&orderBy=name").object();
    EXPECT_EQ(front["values"_L1][0]["key"_L1], u"MOB"_s);
    EXPECT_EQ(front.value("isLast"_L1), false);
}

TEST_F(SiteRestTest, DatesAreInTheFormAndTheZoneOfTheSite)
{
    const QJsonObject issue = ask("GET", issuePath("?fields=created")).object();
    EXPECT_EQ(issue["fields"_L1]["created"_L1].toString(),
              first().created.toTimeZone(QTimeZone("Europe/Paris"))
                      .toString(u"yyyy-MM-ddTHH:mm:ss.zzz"_s) +
                  (first().created < QDateTime({2026, 10, 25}, {1, 0}, Qt::UTC) ? u"+0200"_s
                                                                                : u"+0100"_s));
}

TEST_F(SiteRestTest, AQueryValueIsDecodedOnce)
{
    EXPECT_EQ(ask("GET", "user/search?query=L%C3%A9a+font").json.array().size(), 1);
    EXPECT_EQ(ask("GET", "user/search?query=L%25C3%25A9a").json.array().size(), 0);
}

TEST_F(SiteRestTest, ATransitionThatTheWorkflowOffersMovesTheIssue)
{
    const QJsonArray offered =
        ask("GET", issuePath("/transitions")).object().value("transitions"_L1).toArray();
    const QJsonObject chosen = offered.last().toObject();
    const QByteArray id = chosen.value("id"_L1).toString().toLatin1();
    EXPECT_EQ(
        ask("POST", issuePath("/transitions"), R"({"transition":{"id":")" + id + "\"}}").status,
        204);
    EXPECT_EQ(first().statusId, chosen["to"_L1]["id"_L1].toString());
    EXPECT_EQ(first().history.last().field, u"status"_s);
    EXPECT_EQ(first().updated, now);
}

TEST_F(SiteRestTest, ATransitionThatIsNotOfferedIsRefused)
{
    const qsizetype before = first().history.size();
    EXPECT_EQ(ask("POST", issuePath("/transitions"), R"({"transition":{"id":"999"}})").status, 400);
    EXPECT_EQ(ask("POST", issuePath("/transitions"), R"({"transition":{"id":11}})").status, 400);
    EXPECT_EQ(first().history.size(), before);
}

TEST_F(SiteRestTest, EachFieldOfAnEditIsChecked)
{
    const Reply reply = ask("PUT", issuePath(),
                            R"({"fields":{"summary":" ","labels":["a b"],"duedate":"29/10/2026",
                                "priority":{"id":"99"},"description":"texte","humeur":"bonne"}})");
    EXPECT_EQ(reply.status, 400);
    EXPECT_EQ(errorsOf(reply).keys(), (QStringList{u"description"_s, u"duedate"_s, u"humeur"_s,
                                                   u"labels"_s, u"priority"_s, u"summary"_s}));
}

TEST_F(SiteRestTest, AnEditSetsWhatItNamesAndNullClears)
{
    EXPECT_EQ(
        ask("PUT", issuePath(), R"({"fields":{"summary":"Neuf","duedate":"2026-11-02"}})").status,
        204);
    EXPECT_EQ(first().summary, u"Neuf"_s);
    EXPECT_EQ(first().due, QDate(2026, 11, 2));
    EXPECT_EQ(ask("PUT", issuePath(), R"({"fields":{"duedate":null,"description":null}})").status,
              204);
    EXPECT_EQ(first().due, std::nullopt);
    EXPECT_TRUE(first().description.isEmpty());
}

TEST_F(SiteRestTest, OnlyActiveUsersCanBeAssignedAndNullUnassigns)
{
    EXPECT_EQ(ask("PUT", issuePath("/assignee"), R"({"accountId":"5f0c0002"})").status, 204);
    EXPECT_EQ(first().assignee, u"5f0c0002"_s);
    EXPECT_EQ(ask("PUT", issuePath("/assignee"), R"({"accountId":"5f0c0012"})").status, 400);
    EXPECT_EQ(ask("PUT", issuePath("/assignee"), "{}").status, 400);
    EXPECT_EQ(ask("PUT", issuePath("/assignee"), R"({"accountId":null})").status, 204);
    EXPECT_TRUE(first().assignee.isEmpty());
}

TEST_F(SiteRestTest, ACommentIsStoredAndAnswered)
{
    const QByteArray body =
        R"("body":{"type":"doc","version":1,"content":[{"type":"paragraph","content":[{"type":"text","text":"Vu."}]}]})";
    const QByteArray note =
        R"(,"properties":[{"key":"sd.public.comment","value":{"internal":true}}])";
    const Reply reply = ask("POST", issuePath("/comment"), '{' + body + note + '}');
    EXPECT_EQ(reply.status, 201);
    EXPECT_EQ(reply.object().value("jsdPublic"_L1), false);
    EXPECT_TRUE(first().comments.last().isInternal);
    EXPECT_EQ(ask("POST", issuePath("/comment"), R"({"body":"Vu."})").status, 400);
}

TEST_F(SiteRestTest, ANewIssueNeedsAProjectATypeAndASummary)
{
    const Reply refused = ask("POST", "issue", R"({"fields":{"project":{"key":"PORT"}}})");
    EXPECT_EQ(refused.status, 400);
    EXPECT_EQ(errorsOf(refused).keys(), (QStringList{u"issuetype"_s, u"summary"_s}));

    const Reply made = ask("POST", "issue", R"({"fields":{"project":{"key":"PORT"},
        "issuetype":{"id":"10002"},"summary":"Neuf","labels":["a"],"assignee":{"accountId":"5f0c0002"}}})");
    EXPECT_EQ(made.status, 201);
    const SiteIssue *issue = site.issue(made.object().value("key"_L1).toString());
    ASSERT_TRUE(issue);
    EXPECT_EQ(issue->reporter, site.me);
    EXPECT_EQ(issue->assignee, u"5f0c0002"_s);
    EXPECT_EQ(issue->labels, QStringList{u"a"_s});
}

TEST_F(SiteRestTest, FilesComeInAFormWithTheHeaderAgainstForgery)
{
    RawRequest request{.method = "POST",
                       .target = "/rest/api/3/" + issuePath("/attachments"),
                       .headers = {{"Authorization", authorization},
                                   {"Content-Type", "multipart/form-data; boundary=B"}},
                       .body = "--B\r\nContent-Disposition: form-data; name=\"file\"; "
                               "filename=\"été.txt\"\r\nContent-Type: text/plain\r\n\r\na\r\n--\r\n"
                               "--B--\r\n"};
    EXPECT_EQ(ask(request).status, 403);
    request.headers.emplaceBack("X-Atlassian-Token", "no-check");
    const Reply reply = ask(request);
    EXPECT_EQ(reply.status, 200);
    ASSERT_EQ(reply.json.array().size(), 1);
    EXPECT_EQ(first().attachments.last().filename, u"été.txt"_s);
    EXPECT_EQ(first().attachments.last().content, "a\r\n--");

    request.body.chop(4);
    EXPECT_EQ(ask(request).status, 415);
    site.largestUpload = 10;
    request.body += "--\r\n";
    EXPECT_EQ(ask(request).status, 413);
}

TEST_F(SiteRestTest, AContentIsElsewhereAndThatPlaceWantsNoCredentials)
{
    site.media = QUrl(u"http://files.example"_s);
    const QString id =
        site.attach(*site.issue(first().key), {.mimeType = u"text/plain"_s, .content = "abc"}).id;
    const Reply reply = ask("GET", "attachment/content/" + id.toLatin1());
    EXPECT_EQ(reply.status, 303);
    const QByteArray place = "/file/" + id.toLatin1() + "/binary?token=m" + id.toLatin1();
    EXPECT_TRUE(reply.head.contains("Location: http://files.example" + place));

    RawRequest request{.method = "GET", .target = place};
    EXPECT_TRUE(fileAnswerOf(site, request).bytes.endsWith("\r\n\r\nabc"));
    request.headers = {{"Authorization", authorization}};
    EXPECT_TRUE(fileAnswerOf(site, request).bytes.startsWith("HTTP/1.1 400"));
}

TEST_F(SiteRestTest, ADeletedAttachmentIsGone)
{
    const QString id = site.attach(*site.issue(first().key), {.content = "abc"}).id;
    EXPECT_EQ(ask("DELETE", "attachment/" + id.toLatin1()).status, 204);
    EXPECT_EQ(site.attachment(id), nullptr);
    EXPECT_EQ(ask("DELETE", "attachment/" + id.toLatin1()).status, 404);
}

TEST_F(SiteRestTest, TheSameSeedGivesTheSameSite)
{
    Site other = SiteSeed::company(300, now);
    ASSERT_EQ(other.issues().size(), 300);
    for (qsizetype at = 0; at < 300; ++at) {
        EXPECT_EQ(other.issues()[at].key, site.issues()[at].key);
        EXPECT_EQ(other.issues()[at].summary, site.issues()[at].summary);
        EXPECT_EQ(other.issues()[at].updated, site.issues()[at].updated);
    }
}

} // namespace
