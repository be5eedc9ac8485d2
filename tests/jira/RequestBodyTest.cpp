#include "jira/RequestBody.h"

#include "richtext/ADFCoding.h"
#include "richtext/ADFNodes.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

ADFNode document()
{
    return ADF::document({ADF::container(u"paragraph", {ADF::text(u"été"_s)})});
}

/// `document()` as part of a body, with its members sorted by name.
const QByteArray DocumentJSON =
    R"({"content":[{"content":[{"text":"été","type":"text"}],"type":"paragraph"}],)"
    R"("type":"doc","version":1})";

QByteArray updated(const decltype(IssueFieldUpdate::value) &value)
{
    return RequestBody::update({value});
}

TEST(RequestBody, Transition)
{
    EXPECT_EQ(RequestBody::transition({u"31"_s, u"Terminer"_s, {}}),
              R"({"transition":{"id":"31"}})");
}

TEST(RequestBody, UpdateOfTheSummary)
{
    EXPECT_EQ(updated(IssueFieldUpdate::Summary{u"Le \"port\"\n"_s}),
              R"({"fields":{"summary":"Le \"port\"\n"}})");
}

TEST(RequestBody, UpdateOfTheDescription)
{
    EXPECT_EQ(updated(IssueFieldUpdate::Description{document()}),
              R"({"fields":{"description":)" + DocumentJSON + "}}");
}

TEST(RequestBody, UpdateWithoutADescriptionSendsNull)
{
    EXPECT_EQ(updated(IssueFieldUpdate::Description{}), R"({"fields":{"description":null}})");
}

TEST(RequestBody, UpdateOfThePriority)
{
    EXPECT_EQ(updated(IssueFieldUpdate::Priority{IssuePriority(u"2"_s, u"High"_s)}),
              R"({"fields":{"priority":{"id":"2"}}})");
}

TEST(RequestBody, UpdateOfLabels)
{
    EXPECT_EQ(updated(IssueFieldUpdate::Labels{{u"b"_s, u"a"_s}}),
              R"({"fields":{"labels":["b","a"]}})");
}

TEST(RequestBody, UpdateWithoutLabelsClearsThem)
{
    EXPECT_EQ(updated(IssueFieldUpdate::Labels{}), R"({"fields":{"labels":[]}})");
}

TEST(RequestBody, UpdateOfTheDueDateSendsTheCalendarDay)
{
    EXPECT_EQ(updated(IssueFieldUpdate::DueDate{QDate(2026, 3, 4)}),
              R"({"fields":{"duedate":"2026-03-04"}})");
}

TEST(RequestBody, UpdateWithoutADueDateSendsNull)
{
    EXPECT_EQ(updated(IssueFieldUpdate::DueDate{}), R"({"fields":{"duedate":null}})");
}

TEST(RequestBody, Assign)
{
    JiraUser user;
    user.id = u"712020:ab"_s;
    EXPECT_EQ(RequestBody::assignee(user), R"({"accountId":"712020:ab"})");
}

TEST(RequestBody, AssignWithNoUserSendsNull)
{
    EXPECT_EQ(RequestBody::assignee(std::nullopt), R"({"accountId":null})");
}

TEST(RequestBody, PublicCommentHasNoProperties)
{
    EXPECT_EQ(RequestBody::comment(document(), CommentAudience::Everyone),
              R"({"body":)" + DocumentJSON + "}");
}

TEST(RequestBody, InternalCommentIsMarkedForAgents)
{
    EXPECT_EQ(RequestBody::comment(document(), CommentAudience::Agents),
              R"({"body":)" + DocumentJSON +
                  R"(,"properties":[{"key":"sd.public.comment","value":{"internal":true}}]})");
}

TEST(RequestBody, CreateWithAProjectAndATitleAlone)
{
    IssueDraft draft;
    draft.projectKey = u"NOV"_s;
    draft.summary = u"Titre"_s;
    EXPECT_EQ(RequestBody::create(draft),
              R"({"fields":{"project":{"key":"NOV"},"summary":"Titre"}})");
}

TEST(RequestBody, CreateWithoutATypeSendsNone)
{
    IssueDraft draft;
    draft.priorityID = u"1"_s;
    EXPECT_FALSE(RequestBody::create(draft).contains("issuetype"));
}

TEST(RequestBody, CreateWithEmptyLabelsSendsNone)
{
    IssueDraft draft;
    draft.labels = {};
    EXPECT_FALSE(RequestBody::create(draft).contains("labels"));
}

TEST(RequestBody, CreateWithEverything)
{
    const IssueDraft draft{.projectKey = u"NOV"_s,
                           .issueTypeID = u"10002"_s,
                           .summary = u"Titre"_s,
                           .description = document(),
                           .priorityID = u"1"_s,
                           .assigneeID = u"u1"_s,
                           .labels = {u"web"_s}};
    EXPECT_EQ(RequestBody::create(draft),
              R"({"fields":{"assignee":{"accountId":"u1"},"description":)" + DocumentJSON +
                  R"(,"issuetype":{"id":"10002"},"labels":["web"],"priority":{"id":"1"},)"
                  R"("project":{"key":"NOV"},"summary":"Titre"}})");
}

TEST(RequestBody, HalfASurrogatePairDoesNotBreakTheText)
{
    EXPECT_EQ(updated(IssueFieldUpdate::Summary{QString(QChar(0xD83D))}),
              R"({"fields":{"summary":")"
              "\xEF\xBF\xBD"
              R"("}})");
}

TEST(RequestBody, ADocumentAsDeepAsAnyThatIsReadGoesOutWhole)
{
    QByteArray json = R"({"type":"x"})";
    for (int i = 1; i < ADFCoding::maximumDepth; ++i)
        json = R"({"content":[)" + json + R"(],"type":"x"})";
    EXPECT_EQ(RequestBody::comment(*ADFCoding::decodeNode(json), CommentAudience::Everyone),
              R"({"body":)" + json + "}");
}

} // namespace
