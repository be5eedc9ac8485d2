#include "richtext/ADFQueries.h"

#include "richtext/ADFCoding.h"
#include "richtext/ADFNodes.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

ADFNode read(const char *json)
{
    return ADFCoding::decodeNode(json).value();
}

ADFNode paragraph(const QString &text)
{
    return ADF::container(u"paragraph", {ADF::text(text)});
}

ADFNode media()
{
    return ADF::plain(u"media");
}

TEST(ADFQueries, TwoParagraphsAreTwoLines)
{
    EXPECT_EQ(ADF::plainText(ADF::document({paragraph(u"a"_s), paragraph(u"b"_s)})), u"a\nb"_s);
}

TEST(ADFQueries, InlineNodesRunTogether)
{
    const ADFNode node = read(R"({"type":"paragraph","content":[
        {"type":"text","text":"a"},{"type":"hardBreak"},{"type":"text"},
        {"type":"mention","attrs":{"id":"1","text":"@Nora"}},
        {"type":"emoji","attrs":{"text":"🚀","shortName":":rocket:"}},
        {"type":"emoji","attrs":{"shortName":":ok:"}},{"type":"emoji"},
        {"type":"inlineCard","attrs":{"url":"https://exemple.fr"}},{"type":"inlineCard"}]})");
    EXPECT_EQ(ADF::plainText(node), u"a\n@Nora🚀:ok:https://exemple.fr"_s);
}

TEST(ADFQueries, MentionWithoutAReadableTextIsAnAtSign)
{
    EXPECT_EQ(ADF::plainText(read(R"({"type":"mention"})")), u"@"_s);
    EXPECT_EQ(ADF::plainText(read(R"({"type":"mention","attrs":{"id":"1"}})")), u"@"_s);
    EXPECT_EQ(ADF::plainText(read(R"({"type":"mention","attrs":{"text":[]}})")), u"@"_s);
}

TEST(ADFQueries, NumberInAnAttributeReadsAsItsDecimalText)
{
    EXPECT_EQ(ADF::plainText(read(R"({"type":"emoji","attrs":{"text":2}})")), u"2"_s);
}

TEST(ADFQueries, UnknownKindGivesTheTextOfItsChildren)
{
    const ADFNode node =
        ADF::container(u"future", {paragraph(u"a"_s), ADF::plain(u"rule"), paragraph(u"b"_s)});
    EXPECT_EQ(ADF::plainText(node), u"a\n\nb"_s);
}

TEST(ADFQueries, InlineContainersJoinByNothing)
{
    for (const QStringView type :
         {u"paragraph", u"heading", u"taskItem", u"decisionItem", u"codeBlock"}) {
        EXPECT_EQ(ADF::plainText(ADF::container(type, {ADF::text(u"a"_s), ADF::text(u"b"_s)})),
                  u"ab"_s);
        EXPECT_TRUE(ADF::isInlineContainer(type));
    }
    EXPECT_FALSE(ADF::isInlineContainer(u"listItem"));
}

TEST(ADFQueries, MediaAloneIsNotEmpty)
{
    const ADFNode node = ADF::document({ADF::container(u"mediaSingle", {media()})});
    EXPECT_EQ(ADF::plainText(node).trimmed(), QString());
    EXPECT_FALSE(ADF::isEmpty(node));
}

TEST(ADFQueries, EmptyParagraphIsEmpty)
{
    EXPECT_TRUE(ADF::isEmpty(ADF::document({ADF::container(u"paragraph", {})})));
    EXPECT_TRUE(ADF::isEmpty(ADF::document({})));
}

TEST(ADFQueries, WhiteSpaceIsEmpty)
{
    EXPECT_TRUE(
        ADF::isEmpty(ADF::document({paragraph(u" \t\n\u00A0\u2028"_s), paragraph(u"\n"_s)})));
    EXPECT_FALSE(ADF::isEmpty(ADF::document({paragraph(u" a "_s)})));
}

TEST(ADFQueries, EveryRichKindIsFoundAtAnyDepth)
{
    for (const QStringView type :
         {u"table"_s, u"media"_s, u"mediaSingle"_s, u"mediaGroup"_s, u"panel"_s, u"expand"_s,
          u"nestedExpand"_s, u"layoutSection"_s, u"extension"_s, u"bodiedExtension"_s}) {
        EXPECT_TRUE(ADF::containsRichContent(ADF::plain(type)));
        EXPECT_TRUE(
            ADF::containsRichContent(ADF::document({ADF::container(u"x", {ADF::plain(type)})})));
    }
}

TEST(ADFQueries, PlainKindsAreNotRich)
{
    EXPECT_FALSE(
        ADF::containsRichContent(ADF::document({paragraph(u"a"_s), ADF::plain(u"mediaInline")})));
}

TEST(ADFQueries, MediaIDsOfACommentAreFoundInGroupsAndSingles)
{
    const ADFNode comment = read(R"({"type":"doc","content":[
        {"type":"mediaGroup","content":[{"type":"media","attrs":{"velmoraAttachmentID":"1"}},
                                        {"type":"media","attrs":{"velmoraAttachmentID":2}}]},
        {"type":"mediaSingle","attrs":{"velmoraAttachmentID":"0"},
         "content":[{"type":"media","attrs":{"velmoraAttachmentID":"3"}},{"type":"media"},
                    {"type":"media","attrs":{"velmoraAttachmentID":true}}]}]})");
    EXPECT_EQ(ADF::mediaAttachmentIDs(comment), (QStringList{u"1"_s, u"2"_s, u"0"_s, u"3"_s}));
}

TEST(ADFQueries, LinksAndCardsInDocumentOrder)
{
    const ADFNode node = read(R"({"type":"doc","content":[
        {"type":"text","marks":[{"type":"link","attrs":{"href":"a"}},{"type":"link","attrs":{"href":7}},
                                {"type":"link"},{"type":"link","attrs":{"href":null}},
                                {"type":"em","attrs":{"href":"no"}}]},
        {"type":"inlineCard","attrs":{"url":"c"},"marks":[{"type":"link","attrs":{"href":"b"}}],
         "content":[{"type":"inlineCard","attrs":{"url":"d"}}]},
        {"type":"blockCard","attrs":{"url":"no"}},{"type":"inlineCard"}]})");
    EXPECT_EQ(ADF::linkURLs(node), (QStringList{u"a"_s, u"7"_s, u"b"_s, u"c"_s, u"d"_s}));
}

TEST(ADFQueries, MentionedUsersKeepOrderAndRepeat)
{
    const ADFNode node = read(R"({"type":"doc","content":[
        {"type":"mention","attrs":{"id":"1","text":"@@Nora"}},{"type":"mention","attrs":{"text":"@Sans"}},
        {"type":"mention"},{"type":"mention","attrs":{"id":2}},
        {"type":"panel","content":[{"type":"mention","attrs":{"id":"1","text":"Nora"}}]},
        {"type":"text","attrs":{"id":"3"}}]})");
    const QList<JiraUser> users = ADF::mentionedUsers(node);
    ASSERT_EQ(users.size(), 3);
    EXPECT_EQ(users[0].id, u"1"_s);
    EXPECT_EQ(users[0].name, u"@Nora"_s);
    EXPECT_EQ(users[1].id, u"2"_s);
    EXPECT_EQ(users[1].name, QString());
    EXPECT_EQ(users[2].name, u"Nora"_s);
    EXPECT_FALSE(users[0].email);
    EXPECT_FALSE(users[0].avatarURL);
}

TEST(ADFQueries, MoreMediaThanIDsLeavesTheLastWithout)
{
    qsizetype index = 0;
    const ADFNode node =
        ADF::annotated(ADF::document({ADF::container(u"mediaGroup", {media(), media(), media()})}),
                       {u"10"_s, u"20"_s}, index);
    EXPECT_EQ(index, 3);
    EXPECT_EQ(ADF::mediaAttachmentIDs(node), (QStringList{u"10"_s, u"20"_s}));
    EXPECT_FALSE(node.content->at(0).content->at(2).attrs);
}

TEST(ADFQueries, AnnotationKeepsAttributesAndShape)
{
    const ADFNode before =
        read(R"({"type":"doc","content":[{"type":"mediaInline","attrs":{"id":"m"},
        "content":[{"type":"media","attrs":{"velmoraAttachmentID":"old"}}]},{"type":"file"}]})");
    qsizetype index = 1;
    const ADFNode after = ADF::annotated(before, {u"0"_s, u"1"_s, u"2"_s}, index);
    EXPECT_EQ(index, 3);
    EXPECT_EQ(
        ADFCoding::encode(after),
        R"({"type":"doc","content":[{"type":"mediaInline","content":[{"type":"media",)"
        R"("attrs":{"velmoraAttachmentID":"2"}}],"attrs":{"id":"m","velmoraAttachmentID":"1"}},{"type":"file"}]})");
}

TEST(ADFQueries, AnnotationLeavesTheOriginalAlone)
{
    const ADFNode before = ADF::document({media()});
    qsizetype index = 0;
    EXPECT_NE(ADF::annotated(before, {u"1"_s}, index), before);
    EXPECT_EQ(before, ADF::document({media()}));
}

TEST(ADFQueries, MarksAreFoundByTheirKind)
{
    const ADFNode node = ADF::text(u"a"_s, {{u"em"_s, {}}, {u"strong"_s, {}}});
    EXPECT_TRUE(ADF::hasMark(node, u"strong"));
    EXPECT_FALSE(ADF::hasMark(node, u"code"));
    EXPECT_FALSE(ADF::hasMark(ADF::text(u"a"_s), u"strong"));
}

TEST(ADFQueries, TreesAsDeepAsTheDecoderAdmitsAreWalked)
{
    const int depth = ADFCoding::maximumDepth - 1;
    const QByteArray json = QByteArray(R"({"type":"a","content":[)").repeated(depth) +
                            R"({"type":"text","text":"fond"})" + QByteArray("]}").repeated(depth);
    const ADFNode node = ADFCoding::decodeNode(json).value();
    EXPECT_EQ(ADF::plainText(node), u"fond"_s);
    EXPECT_FALSE(ADF::isEmpty(node));
    EXPECT_TRUE(ADF::linkURLs(node).isEmpty());
    EXPECT_EQ(node, ADFNode(node));
}

} // namespace
