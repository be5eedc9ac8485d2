#include "ClientTest.h"
#include "http/TransportError.h"
#include "model/ADFNode.h"
#include "model/IssueEdits.h"

using namespace Qt::StringLiterals;

namespace {

using ClientWrites = ClientTest;

ADFNode document()
{
    ADFNode result;
    result.type = u"doc"_s;
    return result;
}

TEST_F(ClientWrites, ATransition)
{
    server.answer(RawAnswer::http(204, {}));
    resultOf(client->perform({.id = u"31"_s, .name = u"Fermer"_s, .to = {}}, u"ABC-1"_s));
    EXPECT_EQ(asked(), QStringList{u"POST /rest/api/3/issue/ABC-1/transitions"_s});
    EXPECT_EQ(lastRequest().body, R"({"transition":{"id":"31"}})");
    EXPECT_EQ(lastRequest().header("Content-Type"), "application/json");
    EXPECT_EQ(lastRequest().header("Accept"), "application/json");
}

TEST_F(ClientWrites, AnUpdate)
{
    server.answer(RawAnswer::http(204, {}));
    resultOf(client->update(u"ABC-1"_s, {IssueFieldUpdate::DueDate{}}));
    EXPECT_EQ(asked(), QStringList{u"PUT /rest/api/3/issue/ABC-1"_s});
    EXPECT_EQ(lastRequest().body, R"({"fields":{"duedate":null}})");
}

TEST_F(ClientWrites, AnAssignment)
{
    server.answer(RawAnswer::http(204, {}));
    resultOf(client->assign(u"ABC-1"_s, std::nullopt));
    EXPECT_EQ(asked(), QStringList{u"PUT /rest/api/3/issue/ABC-1/assignee"_s});
    EXPECT_EQ(lastRequest().body, R"({"accountId":null})");
}

TEST_F(ClientWrites, WhateverASuccessSaysIsIgnored)
{
    server.answer(RawAnswer::html("<html>", 200));
    EXPECT_EQ(failureOf(client->assign(u"ABC-1"_s, std::nullopt)), QString());
}

/// A site whose session has ended, or a proxy in front of it, redirects every request to a page for signing in.
TEST_F(ClientWrites, AChangeThatIsRedirectedToAPageIsAFailureAndSentOnce)
{
    for (const int status : {301, 302, 303, 307, 308}) {
        server.answerBy([status](const RawRequest &request) {
            return request.target == "/login" ? RawAnswer::html("<html>Connecte-toi</html>")
                                              : RawAnswer::redirect("/login", status);
        });
        server.clearJournal();
        const QString refused = TransportError(TransportError::Kind::RedirectedWrite).message();
        EXPECT_EQ(failureOf(client->assign(u"ABC-1"_s, std::nullopt)), refused) << status;
        EXPECT_EQ(failureOf(client->perform({.id = u"31"_s, .name = {}, .to = {}}, u"ABC-1"_s)),
                  refused);
        EXPECT_EQ(failureOf(client->deleteAttachment(u"7"_s)), refused);
        EXPECT_EQ(failureOf(client->addComment(u"ABC-1"_s, document(), false)), refused);
        EXPECT_EQ(server.journal().size(), 4);
    }
}

TEST_F(ClientWrites, ADeletionReachesNoOtherSite)
{
    RawServer other;
    other.answer(RawAnswer::http(204, {}));
    server.answer(RawAnswer::redirect(other.url().toEncoded() + "/rest/api/3/attachment/7", 307));
    EXPECT_NE(failureOf(client->deleteAttachment(u"7"_s)), QString());
    EXPECT_EQ(other.connections(), 0);
}

TEST_F(ClientWrites, AnInternalCommentIsInternalThoughTheAnswerDoesNotSay)
{
    server.answer(RawAnswer::json(R"({"id":"7"})", 201));
    EXPECT_TRUE(resultOf(client->addComment(u"ABC-1"_s, document(), true)).isInternal);
    EXPECT_TRUE(lastRequest().body.contains("sd.public.comment"));
    EXPECT_FALSE(resultOf(client->addComment(u"ABC-1"_s, document(), false)).isInternal);
    EXPECT_FALSE(lastRequest().body.contains("sd.public.comment"));
    EXPECT_EQ(asked().last(), u"POST /rest/api/3/issue/ABC-1/comment"_s);
}

TEST_F(ClientWrites, ACreationGivesTheKey)
{
    server.answer(RawAnswer::json(R"({"id":"10","key":"ABC-77","self":"x"})", 201));
    IssueDraft draft;
    draft.projectKey = u"ABC"_s;
    draft.summary = u"Été"_s;
    EXPECT_EQ(resultOf(client->create(draft)), u"ABC-77"_s);
    EXPECT_EQ(asked(), QStringList{u"POST /rest/api/3/issue"_s});
    EXPECT_TRUE(lastRequest().body.contains("\"Été\""));
}

TEST_F(ClientWrites, ACreationWithoutATypeShowsWhatJiraSays)
{
    server.answer(
        RawAnswer::json(R"({"errorMessages":[],"errors":{"issuetype":"Type requis"}})", 400));
    EXPECT_EQ(failureOf(client->create({})), u"issuetype : Type requis"_s);
    EXPECT_FALSE(lastRequest().body.contains("issuetype"));
}

TEST_F(ClientWrites, ADeletion)
{
    server.answer(RawAnswer::http(204, {}));
    resultOf(client->deleteAttachment(u"10/.."_s));
    EXPECT_EQ(asked(), QStringList{u"DELETE /rest/api/3/attachment/10%2F.."_s});
    EXPECT_TRUE(lastRequest().header("Content-Type").isNull());
    EXPECT_TRUE(lastRequest().body.isEmpty());
}

struct Refusal
{
    int status;
    const char *body;
    const char *text;
};

class Refused : public ClientWrites, public testing::WithParamInterface<Refusal>
{
};

TEST_P(Refused, IsTold)
{
    server.answer(RawAnswer::http(GetParam().status, GetParam().body));
    EXPECT_EQ(failureOf(client->assign(u"ABC-1"_s, std::nullopt)),
              QString::fromUtf8(GetParam().text));
    EXPECT_EQ(server.journal().size(), 1);
}

INSTANTIATE_TEST_SUITE_P(
    Statuses, Refused,
    testing::Values(
        Refusal{400, R"({"errorMessages":["un"],"errors":{"z":"Z","b":"B"},"message":"fin"})",
                "un\nb : B\nz : Z\nfin"},
        Refusal{401, R"({"message":"x"})",
                "Jira a refusé les identifiants (401). Vérifie l'e-mail et le token API."},
        Refusal{403, "", "Accès refusé par Jira (403)."},
        Refusal{403, R"({"message":"pas ici"})", "Accès refusé par Jira (403). pas ici"},
        Refusal{404, "", "Ressource introuvable dans Jira (404)."},
        Refusal{404, R"({"errorMessages":["parti"]})", "parti"},
        Refusal{429, "", "Erreur Jira 429."}, Refusal{304, "", "Erreur Jira 304."},
        Refusal{502, "<html>", "Erreur Jira 502."}, Refusal{502, "en panne", "en panne"},
        Refusal{503, "", "Erreur Jira 503."}));

} // namespace
