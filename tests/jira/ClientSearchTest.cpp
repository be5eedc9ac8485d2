#include "ClientTest.h"
#include "richtext/ADFCoding.h"

using namespace Qt::StringLiterals;

namespace {

class ClientSearch : public ClientTest
{
protected:
    JSONValue::Object body(qsizetype request) const
    {
        return *ADFCoding::decodeValue(server.journal().at(request).body)->asObject();
    }
    JSONValue member(qsizetype request, const QString &name) const
    {
        return body(request).value(name);
    }
    QList<JSONValue> queries() const
    {
        QList<JSONValue> result;
        for (qsizetype i = 0; i < server.journal().size(); ++i)
            result.append(member(i, u"jql"_s));
        return result;
    }
};

RawAnswer page(int first, int count, const QByteArray &rest)
{
    QByteArrayList issues;
    for (int i = first; i < first + count; ++i) {
        const QByteArray number = QByteArray::number(i);
        issues.append("{\"id\":\"" + number + "\",\"key\":\"ABC-" + number + "\",\"fields\":{}}");
    }
    return RawAnswer::json("{\"issues\":[" + issues.join(',') + "]" + rest + "}");
}

QStringList keysOf(const IssueList &issues)
{
    QStringList keys;
    for (const auto &issue : issues)
        keys.append(issue->key);
    return keys;
}

const auto refusedCredentials =
    u"Jira a refusé les identifiants (401). Vérifie l'e-mail et le token API."_s;

/// With a token that has expired, a site answers some requests as it answers anybody, and says so in a header.
TEST_F(ClientSearch, AnAnswerForAnybodyIsNoAnswerForTheUser)
{
    for (const char *reason :
         {"AUTHENTICATED_FAILED", "AUTHENTICATION_DENIED", "OK, AUTHENTICATED_FAILED"}) {
        server.answer(RawAnswer::http(200, R"({"issues":[],"values":[],"comments":[]})",
                                      {{"X-Seraph-LoginReason", reason}}));
        EXPECT_EQ(failureOf(client->issues(IssueScope::myIssues())), refusedCredentials);
        EXPECT_EQ(failureOf(client->search(u"portail"_s)), refusedCredentials);
        EXPECT_EQ(failureOf(client->projects()), refusedCredentials);
        EXPECT_EQ(failureOf(client->comments(u"ABC-1"_s)), refusedCredentials);
        EXPECT_EQ(failureOf(client->assign(u"ABC-1"_s, std::nullopt)), refusedCredentials);
    }
    server.answer(RawAnswer::http(200, R"({"issues":[{"id":"1","key":"A-1","fields":{}}]})",
                                  {{"X-Seraph-LoginReason", "OK"}}));
    EXPECT_EQ(failureOf(client->issues(IssueScope::myIssues())), QString());
    server.answer(RawAnswer::http(200, R"({"issues":[{"id":"1","key":"A-1","fields":{}}]})",
                                  {{"X-AUSERNAME", "anonymous"}}));
    EXPECT_EQ(failureOf(client->issues(IssueScope::myIssues())), refusedCredentials);
}

/// Not every site says for whom it answers. An empty list is believed if the site still knows the account.
TEST_F(ClientSearch, AnEmptyListIsBelievedIfTheSiteKnowsTheAccount)
{
    int known = 200;
    server.answerBy([&known](const RawRequest &request) {
        return request.target == "/rest/api/3/myself"
                   ? RawAnswer::json(R"({"accountId":"u1"})", known)
                   : RawAnswer::json(R"({"issues":[],"isLast":true})");
    });
    EXPECT_TRUE(resultOf(client->issues(IssueScope::myIssues())).isEmpty());
    known = 500;
    EXPECT_TRUE(resultOf(client->issues(IssueScope::myIssues())).isEmpty());
    known = 401;
    EXPECT_EQ(failureOf(client->issues(IssueScope::myIssues())), refusedCredentials);
}

TEST_F(ClientSearch, WithLimit150TheSecondRequestAsksFor50)
{
    server.answerNext(page(1, 100, R"(,"nextPageToken":"t1","isLast":false)"));
    server.answerNext(page(101, 50, R"(,"nextPageToken":"t2","isLast":false)"));
    const IssueList issues = resultOf(client->issues(IssueScope::reported()));
    EXPECT_EQ(issues.size(), 150);
    EXPECT_FALSE(issues.first()->hasDetails);
    ASSERT_EQ(server.journal().size(), 2);
    EXPECT_EQ(asked().first(), u"POST /rest/api/3/search/jql"_s);
    EXPECT_EQ(member(0, u"maxResults"_s), JSONValue(100.0));
    EXPECT_FALSE(body(0).contains(u"nextPageToken"_s));
    EXPECT_FALSE(body(0).contains(u"expand"_s));
    EXPECT_EQ(member(1, u"maxResults"_s), JSONValue(50.0));
    EXPECT_EQ(member(1, u"nextPageToken"_s), JSONValue(u"t1"_s));
}

TEST_F(ClientSearch, IssuesWithoutATokenEndTheSearch)
{
    server.answer(page(1, 2, R"(,"isLast":false)"));
    EXPECT_EQ(keysOf(resultOf(client->issues(IssueScope::myIssues()))),
              (QStringList{u"ABC-1"_s, u"ABC-2"_s}));
    EXPECT_EQ(server.journal().size(), 1);
}

TEST_F(ClientSearch, AMissingIsLastGoesOnToTheNextPage)
{
    server.answerNext(page(1, 1, R"(,"nextPageToken":"t1")"));
    server.answerNext(page(2, 1, R"(,"isLast":true,"nextPageToken":"t2")"));
    EXPECT_EQ(keysOf(resultOf(client->issues(IssueScope::myIssues()))),
              (QStringList{u"ABC-1"_s, u"ABC-2"_s}));
}

TEST_F(ClientSearch, MoreThanWasAskedForIsKept)
{
    server.answer(page(1, 60, R"(,"nextPageToken":"t1")"));
    EXPECT_EQ(resultOf(client->issues(IssueScope::recent())).size(), 60);
    EXPECT_EQ(server.journal().size(), 1);
}

TEST_F(ClientSearch, AFailedPageFailsTheWholeSearch)
{
    server.answerNext(page(1, 1, R"(,"nextPageToken":"t1")"));
    server.answerNext(RawAnswer::http(500, "panne"));
    EXPECT_EQ(failureOf(client->issues(IssueScope::myIssues())), u"panne"_s);
    server.answerNext(page(1, 1, R"(,"nextPageToken":"t1")"));
    server.answerNext(RawAnswer::json(R"({"issues":[{"id":"1","key":"A-1"}]})"));
    EXPECT_TRUE(failureOf(client->issues(IssueScope::myIssues()))
                    .startsWith(u"Réponse Jira illisible : issues[0].fields"_s));
}

TEST_F(ClientSearch, NothingFoundIsNoFailure)
{
    server.answer(page(1, 0, R"(,"nextPageToken":"t1")"));
    EXPECT_TRUE(resultOf(client->issues(IssueScope::recent())).isEmpty());
    EXPECT_EQ(asked(),
              (QStringList{u"POST /rest/api/3/search/jql"_s, u"GET /rest/api/3/myself"_s}));
}

TEST_F(ClientSearch, TheRunningSprintOfASiteWithoutSprintsIsWhatIsInProgress)
{
    server.answerNext(RawAnswer::json(R"({"errorMessages":["no sprint"]})", 400));
    server.answerNext(page(1, 1, R"(,"isLast":true)"));
    const auto scope = IssueScope::project(u"ABC"_s, ProjectView::Active);
    EXPECT_EQ(keysOf(resultOf(client->issues(scope))), QStringList{u"ABC-1"_s});
    EXPECT_EQ(queries(),
              (QList<JSONValue>{u"project = \"ABC\" AND sprint in openSprints() ORDER BY rank"_s,
                                u"project = \"ABC\" AND statusCategory = \"In Progress\" ORDER BY "
                                "updated DESC"_s}));
}

TEST_F(ClientSearch, TheBacklogOfASiteWithoutSprintsIsWhatIsToDo)
{
    server.answerNext(RawAnswer::http(400, {}));
    server.answerNext(page(1, 1, R"(,"isLast":true)"));
    resultOf(client->issues(IssueScope::project(u"ABC"_s, ProjectView::Backlog)));
    EXPECT_EQ(
        queries().last(),
        JSONValue(u"project = \"ABC\" AND statusCategory = \"To Do\" ORDER BY created DESC"_s));
}

TEST_F(ClientSearch, ARefusedSprintIsAFailure)
{
    server.answer(RawAnswer::http(403, {}));
    EXPECT_EQ(failureOf(client->issues(IssueScope::project(u"ABC"_s, ProjectView::Active))),
              u"Accès refusé par Jira (403)."_s);
    EXPECT_EQ(server.journal().size(), 1);
}

TEST_F(ClientSearch, AfterTheFallbackThereIsNoThirdTry)
{
    server.answerNext(RawAnswer::http(400, "first"));
    server.answerNext(RawAnswer::http(400, "second"));
    EXPECT_EQ(failureOf(client->issues(IssueScope::project(u"ABC"_s, ProjectView::Active))),
              u"second"_s);
    EXPECT_EQ(server.journal().size(), 2);
}

TEST_F(ClientSearch, AListWithoutSprintsHasNoFallback)
{
    server.answer(RawAnswer::http(400, "non"));
    for (const IssueScope &scope :
         {IssueScope::myIssues(), IssueScope::recent(), IssueScope::reported(),
          IssueScope::project(u"ABC"_s, ProjectView::All)})
        EXPECT_EQ(failureOf(client->issues(scope)), u"non"_s);
    EXPECT_EQ(server.journal().size(), 4);
}

TEST_F(ClientSearch, ATextLikeAKeyIsThatIssue)
{
    server.answer(RawAnswer::json(R"({"id":"1","key":"ABC-12","fields":{}})"));
    const IssueList issues = resultOf(client->search(u" abc-12\n"_s));
    ASSERT_EQ(issues.size(), 1);
    EXPECT_TRUE(issues.first()->hasDetails);
    EXPECT_EQ(asked().size(), 1);
    EXPECT_TRUE(asked().first().startsWith(u"GET /rest/api/3/issue/ABC-12?"_s));
}

TEST_F(ClientSearch, ATextLikeAKeyThatIsNoneIsSearched)
{
    server.answerNext(RawAnswer::http(404, {}));
    server.answerNext(page(1, 1, R"(,"isLast":true)"));
    EXPECT_EQ(resultOf(client->search(u"abc-12"_s)).size(), 1);
    EXPECT_EQ(member(1, u"jql"_s), JSONValue(u"text ~ \"abc-12*\" ORDER BY updated DESC"_s));
    EXPECT_EQ(member(1, u"maxResults"_s), JSONValue(20.0));
}

TEST_F(ClientSearch, QuotesAndBackslashesOfATextAreEscaped)
{
    server.answer(page(1, 0, {}));
    resultOf(client->search(u"a \"b\" c\\d"_s));
    EXPECT_EQ(member(0, u"jql"_s),
              JSONValue(u"text ~ \"a \\\"b\\\" c\\\\d*\" ORDER BY updated DESC"_s));
}

TEST_F(ClientSearch, ABlankTextSendsNoRequest)
{
    EXPECT_TRUE(resultOf(client->search(u" \n\t"_s)).isEmpty());
    EXPECT_EQ(server.connections(), 0);
}

TEST_F(ClientSearch, AStopWhileAKeyIsTriedSearchesNothing)
{
    std::stop_source stop;
    server.answer(RawAnswer::nothing(RawAnswer::Ending::Stall));
    const TaskResult result(client->search(u"abc-12"_s, stop.get_token()));
    ASSERT_TRUE(runUntil([&] { return server.journal().size() == 1; }));
    stop.request_stop();
    EXPECT_THROW(result.value(), Cancelled);
    EXPECT_EQ(asked().size(), 1);
}

/// The current time of the test is in the week that begins on 26 October, at midnight in Paris.
RawAnswer recapPage()
{
    const auto issue = [](const QByteArray &key, const QByteArray &date) {
        return R"({"id":"1","key":")" + key +
               R"(","fields":{"created":"2026-01-01T10:00:00.000+0100"},
            "changelog":{"histories":[{"created":")" +
               date + R"(","items":[{"fieldId":"status","fromString":"a","toString":"b"}]}]}})";
    };
    return RawAnswer::json("{\"isLast\":true,\"issues\":[" +
                           QByteArrayList{issue("ABC-1", "2026-10-26T00:00:00.000+0100"),
                                          issue("ABC-2", "2026-11-02T00:00:00.000+0100"),
                                          issue("ABC-3", "2026-10-28T09:30:00.000+0100")}
                               .join(',') +
                           "]}");
}

TEST_F(ClientSearch, ARecapKeepsWhatHappenedInItsPeriod)
{
    server.answer(recapPage());
    const ActivityPeriod period{.range = ActivityRange::Week, .offset = 0, .teamWide = false};
    const IssueList issues = resultOf(client->issues(IssueScope::activity(period)));
    EXPECT_EQ(keysOf(issues), (QStringList{u"ABC-1"_s, u"ABC-3"_s}));
    EXPECT_EQ(issues.first()->activity.size(), 1);
    EXPECT_EQ(member(0, u"expand"_s), JSONValue(u"changelog"_s));
    EXPECT_EQ(
        member(0, u"jql"_s).asString()->left(93),
        u"(status CHANGED BY currentUser() DURING (\"2026/10/26 00:00\", \"2026/11/02 00:00\") OR "
        "(assignee"_s.left(93));
}

TEST_F(ClientSearch, ARecapFollowsTheTimeZoneThatTheSystemHasChangedTo)
{
    server.answer(recapPage());
    calendar.change({QLocale(QLocale::French, QLocale::France), QTimeZone("America/New_York")});
    const ActivityPeriod period{.range = ActivityRange::Week, .offset = 0, .teamWide = false};
    // Both midnights in Paris are on Sunday evenings there.
    EXPECT_EQ(keysOf(resultOf(client->issues(IssueScope::activity(period)))),
              (QStringList{u"ABC-2"_s, u"ABC-3"_s}));
}

} // namespace
