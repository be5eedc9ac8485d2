#include "ClientTest.h"
#include "http/TransportError.h"
#include "model/JiraError.h"

#include <QUrlQuery>

using namespace Qt::StringLiterals;

namespace {

using ClientReads = ClientTest;

/// A page of a site with `total` projects.
RawAnswer projectPage(const RawRequest &request, int total)
{
    const QUrlQuery query(QUrl::fromEncoded(request.target));
    const int start = query.queryItemValue(u"startAt"_s).toInt();
    const int size = std::min(query.queryItemValue(u"maxResults"_s).toInt(), total - start);
    QByteArrayList values;
    for (int i = start; i < start + size; ++i)
        values.append(R"({"id":"%1","key":"P%1"})"_L1.toString().arg(i).toUtf8());
    const QByteArray isLast = start + size < total ? "false" : "true";
    return RawAnswer::json("{\"isLast\":" + isLast + ",\"values\":[" + values.join(',') + "]}");
}

TEST_F(ClientReads, ASiteWith130ProjectsTakesTwoRequests)
{
    server.answerBy([](const RawRequest &request) { return projectPage(request, 130); });
    const QList<Project> projects = resultOf(client->projects());
    EXPECT_EQ(projects.size(), 130);
    EXPECT_EQ(projects.last().key, u"P129"_s);
    EXPECT_EQ(
        asked(),
        (QStringList{u"GET /rest/api/3/project/search?maxResults=100&orderBy=name&startAt=0"_s,
                     u"GET /rest/api/3/project/search?maxResults=100&orderBy=name&startAt=100"_s}));
}

TEST_F(ClientReads, ASiteWith600ProjectsYields500AndStops)
{
    server.answerBy([](const RawRequest &request) { return projectPage(request, 600); });
    EXPECT_EQ(resultOf(client->projects()).size(), 500);
    EXPECT_EQ(asked().size(), 5);
}

TEST_F(ClientReads, APageOfProjectsWithoutIsLastEndsTheList)
{
    server.answer(RawAnswer::json(R"({"values":[{"id":"1","key":"A"}]})"));
    EXPECT_EQ(resultOf(client->projects()).size(), 1);
    EXPECT_EQ(asked().size(), 1);
}

TEST_F(ClientReads, AFailedPageOfProjectsFailsAll)
{
    server.answerNext(RawAnswer::json(R"({"isLast":false,"values":[{"id":"1","key":"A"}]})"));
    server.answerNext(RawAnswer::http(503, {}));
    EXPECT_EQ(failureOf(client->projects()), u"Erreur Jira 503."_s);
}

TEST_F(ClientReads, AProjectWithItsTypes)
{
    server.answer(RawAnswer::json(
        R"({"id":"1","key":"A","issueTypes":[{"id":"7","name":"Bug","subtask":false}]})"));
    const Project project = resultOf(client->project(u"A B/é"_s));
    ASSERT_EQ(project.issueTypes.size(), 1);
    EXPECT_EQ(project.issueTypes.first().name, u"Bug"_s);
    EXPECT_EQ(asked(), QStringList{u"GET /rest/api/3/project/A%20B%2F%C3%A9"_s});
}

TEST_F(ClientReads, StatusesOfAProjectEachOnce)
{
    server.answer(RawAnswer::json(
        R"([{"statuses":[{"id":"1","name":"Terminé"}]},{"statuses":[{"id":"2","name":"terminé "}]}])"));
    EXPECT_EQ(resultOf(client->statuses(u"A"_s)).size(), 1);
    EXPECT_EQ(asked(), QStringList{u"GET /rest/api/3/project/A/statuses"_s});
}

TEST_F(ClientReads, PrioritiesOfASiteThatHasThePagedForm)
{
    server.answer(RawAnswer::json(R"({"values":[{"id":"1","name":"Haute"}]})"));
    EXPECT_EQ(resultOf(client->priorities()).size(), 1);
    EXPECT_EQ(asked(), QStringList{u"GET /rest/api/3/priority/search?maxResults=100"_s});
}

class OlderSite : public ClientReads, public testing::WithParamInterface<RawAnswer>
{
};

TEST_P(OlderSite, GivesPrioritiesWithNoMessageThoughTheFirstWayFails)
{
    server.answerBy([](const RawRequest &request) {
        return request.target == "/rest/api/3/priority"
                   ? RawAnswer::json(R"([{"id":"1","name":"Haute"}])")
                   : GetParam();
    });
    const auto priorities = resultOf(client->priorities());
    ASSERT_EQ(priorities.size(), 1);
    EXPECT_EQ(priorities.first().name(), u"Haute"_s);
    EXPECT_EQ(asked().last(), u"GET /rest/api/3/priority"_s);
}

INSTANTIATE_TEST_SUITE_P(Failures, OlderSite,
                         testing::Values(RawAnswer::http(404, {}), RawAnswer::http(500, "x"),
                                         RawAnswer::json("[]"), RawAnswer::html("<html>"),
                                         RawAnswer::json("{}").cut(1, RawAnswer::Ending::Close)));

TEST_F(ClientReads, WhenBothWaysToPrioritiesFailTheSecondSaysWhy)
{
    server.answerNext(RawAnswer::http(404, "first"));
    server.answerNext(RawAnswer::http(503, "second"));
    EXPECT_EQ(failureOf(client->priorities()), u"second"_s);
}

TEST_F(ClientReads, AStopDuringTheFirstWayToPrioritiesAsksNoMore)
{
    std::stop_source stop;
    server.answer(RawAnswer::nothing(RawAnswer::Ending::Stall));
    const TaskResult result(client->priorities(stop.get_token()));
    ASSERT_TRUE(runUntil([&] { return server.journal().size() == 1; }));
    stop.request_stop();
    EXPECT_THROW(result.value(), Cancelled);
    EXPECT_EQ(asked().size(), 1);
}

constexpr auto Users = R"([
    {"accountId":"1","displayName":"Zoé","accountType":"atlassian"},
    {"accountId":"2","displayName":"Émile"},
    {"accountId":"3","displayName":"Client","accountType":"customer"},
    {"accountId":"4","displayName":"Robot","accountType":"app"},
    {"accountId":"5","displayName":"Parti","active":false}])";

QStringList namesOf(const QList<JiraUser> &users)
{
    QStringList names;
    for (const JiraUser &user : users)
        names.append(user.name);
    return names;
}

TEST_F(ClientReads, CharactersThatHideInANameAreVisible)
{
    server.answer(RawAnswer::json(
        u"[{\"accountId\":\"1\",\"displayName\":\"Elsa\u202EiK\\nZ\"}]"_s.toUtf8()));
    EXPECT_EQ(namesOf(resultOf(client->searchUsers(u""_s))),
              QStringList{u"Elsa[U+202E]iK[U+000A]Z"_s});
}

TEST_F(ClientReads, WhoCanTakeAnIssueByName)
{
    server.answer(RawAnswer::json(Users));
    EXPECT_EQ(namesOf(resultOf(client->assignableUsers(u"ABC"_s))),
              (QStringList{u"Émile"_s, u"Zoé"_s}));
    EXPECT_EQ(asked(),
              QStringList{u"GET /rest/api/3/user/assignable/search?maxResults=200&project=ABC"_s});
}

TEST_F(ClientReads, WhoCanBeMentionedInTheOrderOfTheServer)
{
    server.answer(RawAnswer::json(Users));
    EXPECT_EQ(namesOf(resultOf(client->searchUsers(u"a+b&c=%41#é"_s))),
              (QStringList{u"Zoé"_s, u"Émile"_s, u"Client"_s}));
    EXPECT_EQ(asked(), QStringList{u"GET /rest/api/3/user/search?maxResults=20&query="
                                   "a%2Bb%26c%3D%2541%23%C3%A9"_s});
}

TEST_F(ClientReads, AnIssueHasItsDetails)
{
    server.answer(RawAnswer::json(R"({"id":"10","key":"ABC-1","fields":{"summary":"Titre"}})"));
    const Issue issue = resultOf(client->issue(u"ABC-1"_s));
    EXPECT_EQ(issue.summary, u"Titre"_s);
    EXPECT_TRUE(issue.hasDetails);
    EXPECT_TRUE(issue.activity.isEmpty());
    const QStringList requests = asked();
    ASSERT_EQ(requests.size(), 1);
    EXPECT_EQ(
        requests.first(),
        u"GET /rest/api/3/issue/ABC-1?expand=renderedFields&fields=summary%2Cstatus%2Cpriority%2C"
        "assignee%2Creporter%2Clabels%2Cissuetype%2Cproject%2Ccreated%2Cupdated%2Cduedate%2C"
        "parent%2Csubtasks%2Cdescription%2Cattachment"_s);
}

TEST_F(ClientReads, CommentsOfAnIssueAreOnePage)
{
    server.answer(
        RawAnswer::json(R"({"comments":[{"id":"1"},{"id":"2","jsdPublic":false}],"total":900})"));
    const auto comments = resultOf(client->comments(u"ABC-1"_s));
    ASSERT_EQ(comments.size(), 2);
    EXPECT_FALSE(comments.first().isInternal);
    EXPECT_TRUE(comments.last().isInternal);
    EXPECT_EQ(comments.first().created, clock.now());
    EXPECT_EQ(asked(), QStringList{u"GET /rest/api/3/issue/ABC-1/comment?expand=renderedBody&"
                                   "maxResults=100&orderBy=created"_s});
}

TEST_F(ClientReads, TransitionsInTheOrderOfTheServer)
{
    server.answer(RawAnswer::json(R"({"transitions":[
        {"id":"31","name":"Fermer","to":{"id":"3","name":"Terminé"}},
        {"id":"11","name":"Ouvrir","to":{"id":"1","name":"Ouvert"}}]})"));
    const auto transitions = resultOf(client->transitions(u"ABC-1"_s));
    ASSERT_EQ(transitions.size(), 2);
    EXPECT_EQ(transitions.first().id, u"31"_s);
    EXPECT_EQ(transitions.first().to.name(), u"Terminé"_s);
    EXPECT_EQ(asked(), QStringList{u"GET /rest/api/3/issue/ABC-1/transitions"_s});
}

TEST_F(ClientReads, AnAnswerThatCannotBeReadNamesThePlace)
{
    server.answer(RawAnswer::json(R"({"transitions":[{"id":"1","name":"x","to":{"id":"2"}}]})"));
    EXPECT_TRUE(failureOf(client->transitions(u"ABC-1"_s))
                    .startsWith(u"Réponse Jira illisible : transitions[0].to.name"_s));
}

TEST_F(ClientReads, AnEmptyAnswerCannotBeRead)
{
    server.answer(RawAnswer::http(200, {}));
    EXPECT_TRUE(failureOf(client->currentUser()).startsWith(u"Réponse Jira illisible : "_s));
}

TEST_F(ClientReads, ASiteWithoutAHostIsNoneToAsk)
{
    connectAs({QUrl(u"https:"_s), {}, u"pat"_s});
    EXPECT_EQ(failureOf(client->currentUser()), JiraError(JiraError::InvalidSite()).message());
}

TEST_F(ClientReads, TheEndOfTheClientEndsWhatIsUnderWay)
{
    server.answer(RawAnswer::nothing(RawAnswer::Ending::Stall));
    const TaskResult result(client->issues(IssueScope::myIssues()));
    ASSERT_TRUE(runUntil([&] { return server.journal().size() == 1; }));
    client.reset();
    ASSERT_TRUE(runUntil([&] { return result.isDone(); }));
    EXPECT_THROW(result.value(), Cancelled);
    EXPECT_TRUE(runUntil([&] { return server.openConnections() == 0; }));
}

TEST_F(ClientReads, AStopWhileAnAnswerIsReadEndsTheOperation)
{
    std::stop_source stop;
    server.answer(RawAnswer::json("[]"));
    const TaskResult result(client->assignableUsers(u"A"_s, stop.get_token()));
    ASSERT_TRUE(runUntil([&] { return server.journal().size() == 1; }));
    stop.request_stop();
    ASSERT_TRUE(runUntil([&] { return result.isDone(); }));
    EXPECT_THROW(result.value(), Cancelled);
}

TEST_F(ClientReads, ResultsComeBackOnTheThreadOfTheCall)
{
    server.answer(RawAnswer::json("[]"));
    QThread *thread = nullptr;
    const auto ask = [](JiraClient *site, QThread **seen) -> QCoro::Task<> {
        co_await site->assignableUsers(u"A"_s);
        *seen = QThread::currentThread();
    };
    resultOf(ask(&*client, &thread));
    EXPECT_EQ(thread, QThread::currentThread());
}

TEST_F(ClientReads, NamesTheSiteAndItsPagesWithoutAsking)
{
    connectAs({QUrl(u"https://équipe.exemple.fr:8443"_s), {}, u"pat"_s});
    EXPECT_EQ(client->siteName(), u"xn--quipe-9ra.exemple.fr"_s);
    EXPECT_EQ(client->browseURL(u"ABC-1"_s),
              QUrl(u"https://équipe.exemple.fr:8443/browse/ABC-1"_s));
}

} // namespace
