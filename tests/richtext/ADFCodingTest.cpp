#include "richtext/ADFCoding.h"

#include "richtext/ADFMarkdown.h"
#include "richtext/ADFNodes.h"

#include <gtest/gtest.h>
#include <limits>
#include <simdjson.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray nested(const QByteArray &opening, const QByteArray &closing, int depth)
{
    return opening.repeated(depth) + R"({"type":"x"})" + closing.repeated(depth);
}

QByteArray nestedNodes(int depth)
{
    return nested(R"({"type":"a","content":[)", "]}", depth);
}

QString failureOf(const QByteArray &json)
{
    const auto node = ADFCoding::decodeNode(json);
    return node ? u"read"_s : node.error().description();
}

TEST(ADFCoding, UnknownKeyIsDroppedOnTheWay)
{
    const auto node = ADFCoding::decodeNode(R"({"type":"paragraph","mood":"gai"})");
    ASSERT_TRUE(node);
    EXPECT_EQ(*node, ADF::plain(u"paragraph"));
    EXPECT_EQ(ADFCoding::encode(*node), R"({"type":"paragraph"})");
}

TEST(ADFCoding, LevelAsATextReadsAsAnInteger)
{
    const auto node = ADFCoding::decodeNode(R"({"type":"heading","attrs":{"level":"2"}})");
    ASSERT_TRUE(node);
    EXPECT_EQ(node->attrs->value(u"level"_s).integer(), 2);
}

TEST(ADFCoding, HeadingKeepsKeyOrderAndWritesTwo)
{
    ADFNode heading = ADF::container(u"heading", {ADF::text(u"a"_s)});
    heading.attrs = ADFAttributes{{u"level"_s, 2}};
    EXPECT_EQ(ADFCoding::encode(heading),
              R"({"type":"heading","content":[{"type":"text","text":"a"}],"attrs":{"level":2}})");
}

TEST(ADFCoding, AbsentAndEmptyAreDifferent)
{
    EXPECT_NE(ADFCoding::decodeNode(R"({"type":"x","content":[]})").value(),
              ADFCoding::decodeNode(R"({"type":"x"})").value());
}

TEST(ADFCoding, PartOfAParsedAnswerIsRead)
{
    simdjson::dom::parser parser;
    const QByteArray json = R"({"fields":{"description":{"type":"doc","version":1,"content":[]}}})";
    const simdjson::dom::element root =
        parser.parse(json.constData(), size_t(json.size())).value_unsafe();
    simdjson::dom::element description;
    ASSERT_FALSE(root["fields"]["description"].get(description));
    EXPECT_EQ(ADFCoding::decodeNode(description).value(), ADF::document({}));
    EXPECT_EQ(ADFCoding::decodeValue(description)->asObject()->value(u"version"_s), JSONValue(1));
}

TEST(ADFCoding, DocumentAtTheDepthLimitIsRead)
{
    EXPECT_EQ(failureOf(nestedNodes(ADFCoding::maximumDepth - 1)), u"read"_s);
}

TEST(ADFCoding, DocumentBeyondTheDepthLimitFails)
{
    EXPECT_TRUE(failureOf(nestedNodes(ADFCoding::maximumDepth))
                    .endsWith(u"content[0] : imbrication trop profonde"_s));
}

TEST(ADFCoding, AttributesBeyondTheDepthLimitFail)
{
    const QByteArray value = QByteArray("[").repeated(300) + QByteArray("]").repeated(300);
    EXPECT_TRUE(failureOf(R"({"type":"a","attrs":{"b":)" + value + "}}")
                    .endsWith(u"imbrication trop profonde"_s));
}

TEST(ADFCoding, ValueBeyondItsDepthLimitFails)
{
    const auto arrays = [](int depth) {
        return QByteArray("[").repeated(depth) + QByteArray("]").repeated(depth);
    };
    EXPECT_TRUE(ADFCoding::decodeValue(arrays(ADFCoding::maximumValueDepth)));
    EXPECT_FALSE(ADFCoding::decodeValue(arrays(ADFCoding::maximumValueDepth + 1)));
}

TEST(ADFCoding, HostileNestingFails)
{
    EXPECT_NE(failureOf(nestedNodes(200'000)), u"read"_s);
    EXPECT_FALSE(ADFCoding::decodeValue(QByteArray("[").repeated(1'000'000)));
}

TEST(ADFCoding, DepthIsCountedAlongOneBranchOnly)
{
    const QByteArray branch = nestedNodes(ADFCoding::maximumDepth - 2);
    EXPECT_EQ(failureOf(R"({"type":"a","content":[)" + branch + "," + branch + "]}"), u"read"_s);
}

TEST(ADFCoding, BrokenJSONFails)
{
    for (const char *json : {"", " ", "{", R"({"type":"x")", R"({"type":"x"} 1)", "{'type':'x'}",
                             R"({"type":"x",})", "nul"})
        EXPECT_FALSE(ADFCoding::decodeNode(json)) << json;
}

TEST(ADFCoding, InvalidUTF8Fails)
{
    EXPECT_FALSE(ADFCoding::decodeNode("{\"type\":\"\xC3\"}"));
    EXPECT_FALSE(ADFCoding::decodeNode("{\"type\":\"\xED\xA0\x80\"}"));
    EXPECT_FALSE(ADFCoding::decodeNode("{\"type\":\"a\xFF\"}"));
}

TEST(ADFCoding, HalfASurrogatePairInAnEscapeDoesNotCrash)
{
    for (const char *json :
         {R"({"type":"\ud83d"})", R"({"type":"\ude80"})", R"({"type":"\ud83dx"})"}) {
        const auto node = ADFCoding::decodeNode(json);
        EXPECT_TRUE(!node || node->type.isValidUtf16()) << json;
    }
}

TEST(ADFCoding, NumbersBeyondADoubleFail)
{
    EXPECT_FALSE(ADFCoding::decodeValue("1e999"));
    EXPECT_FALSE(ADFCoding::decodeValue("-1e999"));
}

TEST(ADFCoding, EveryKindOfValueIsRead)
{
    EXPECT_EQ(ADFCoding::decodeValue("null").value(), JSONValue());
    EXPECT_EQ(ADFCoding::decodeValue("true").value(), JSONValue(true));
    EXPECT_EQ(ADFCoding::decodeValue("7").value(), JSONValue(7));
    EXPECT_EQ(ADFCoding::decodeValue("7.5").value(), JSONValue(7.5));
    EXPECT_EQ(ADFCoding::decodeValue(R"("7")").value(), JSONValue(u"7"));
    EXPECT_EQ(ADFCoding::decodeValue("[1,[]]").value(),
              JSONValue(JSONValue::Array{1, JSONValue::Array{}}));
    EXPECT_EQ(ADFCoding::decodeValue(R"({"a":1})").value(),
              JSONValue(JSONValue::Object{{u"a"_s, 1}}));
}

TEST(ADFCoding, ValueErrorNamesThePlace)
{
    const QByteArray deep = QByteArray("[").repeated(600) + QByteArray("]").repeated(600);
    const auto value = ADFCoding::decodeValue(R"({"a":[0,)" + deep + "]}");
    ASSERT_FALSE(value);
    EXPECT_TRUE(value.error().place.startsWith(u"a[1][0]")) << qPrintable(value.error().place);
}

TEST(ADFCoding, WhatJSONCannotSayIsReplaced)
{
    EXPECT_EQ(ADFCoding::encode(JSONValue(std::numeric_limits<double>::infinity())), "null");
    EXPECT_EQ(ADFCoding::encode(JSONValue(std::numeric_limits<double>::quiet_NaN())), "null");
    EXPECT_EQ(ADFCoding::encode(JSONValue(QString(QChar(0xD83D)))), "\"\xEF\xBF\xBD\"");
}

TEST(ADFCoding, ShortestDecimalFormReadsBackAsTheSameNumber)
{
    for (const double number : {0.1, 1.0 / 3, 1e-7, 5e-324, 1.7976931348623157e308, -2.5e10,
                                9007199254740993.0, 1e21, 9.1e18})
        EXPECT_EQ(ADFCoding::decodeValue(ADFCoding::encode(JSONValue(number))).value(),
                  JSONValue(number))
            << number;
}

TEST(ADFCoding, WholeNumberBeyond64BitsReadsBackAsTheSameNumber)
{
    for (const double number :
         {9e18, 9223372036854775808.0, 18446744073709551616.0, 1111111111111111111115.6, -1e20})
        EXPECT_EQ(ADFCoding::decodeValue(ADFCoding::encode(JSONValue(number))), JSONValue(number))
            << number;
}

TEST(ADFCoding, NodeAsAValue)
{
    const JSONValue value =
        ADFCoding::jsonValueFrom(ADF::document({ADF::container(u"paragraph", {})}));
    ASSERT_TRUE(value.asObject());
    EXPECT_EQ(value.asObject()->keys(), (QStringList{u"content"_s, u"type"_s, u"version"_s}));
    EXPECT_EQ(value.asObject()->value(u"version"_s), JSONValue(1));
}

TEST(ADFCoding, NodeThatNestsTooDeeplyIsNullAsAValue)
{
    ADFNode node = ADF::plain(u"x");
    for (int i = 0; i <= ADFCoding::maximumValueDepth / 2; ++i)
        node = ADF::container(u"a", {node});
    EXPECT_EQ(ADFCoding::jsonValueFrom(node), JSONValue());
}

TEST(ADFCoding, DocumentAsDeepAsTheDecoderAdmitsGoesRoundAsAValue)
{
    // The children of a node are in an array, so each node takes two levels as a value.
    const ADFNode node =
        ADFCoding::decodeNode(nestedNodes(ADFCoding::maximumDepth / 2 - 1)).value();
    EXPECT_NE(ADFCoding::jsonValueFrom(node), JSONValue());
}

TEST(ADFCoding, MarkdownDocumentGoesRound)
{
    const ADFNode node =
        ADFMarkdown::document(u"# a\n- **b** [c](d)\n  1. e\n- [x] f\n> g\n```h\ni\n```\n---"_s);
    EXPECT_EQ(ADFCoding::decodeNode(ADFCoding::encode(node)).value(), node);
}

} // namespace
