#include "simulator/DocumentCheck.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Document
{
    const char *name;
    QByteArray content;
};

std::optional<QString> faultWith(const QByteArray &content)
{
    const QByteArray json = R"({"type":"doc","version":1,"content":[)" + content + "]}";
    const QJsonDocument document = QJsonDocument::fromJson(json);
    EXPECT_TRUE(document.isObject()) << json.constData();
    return faultOf(document.object());
}

constexpr auto testName = [](const auto &test) { return test.param.name; };

class GoodDocumentTest : public testing::TestWithParam<Document>
{
};

INSTANTIATE_TEST_SUITE_P(
    Documents, GoodDocumentTest,
    testing::Values(
        Document{"Nothing", ""}, Document{"AnEmptyParagraph", R"({"type":"paragraph"})"},
        Document{
            "MarkedText",
            R"({"type":"paragraph","content":[{"type":"text","text":"a","marks":[{"type":"strong"},{"type":"em"}]}]})"},
        Document{
            "CodeThatIsALink",
            R"({"type":"paragraph","content":[{"type":"text","text":"a","marks":[{"type":"code"},{"type":"link","attrs":{"href":"https://a.example"}}]}]})"},
        Document{
            "AListInAList",
            R"({"type":"bulletList","content":[{"type":"listItem","content":[{"type":"paragraph"},{"type":"orderedList","content":[{"type":"listItem","content":[{"type":"paragraph"}]}]}]}]})"},
        Document{
            "ATable",
            R"({"type":"table","content":[{"type":"tableRow","content":[{"type":"tableHeader","content":[{"type":"paragraph"}]}]}]})"},
        Document{"AMention",
                 R"({"type":"paragraph","content":[{"type":"mention","attrs":{"id":"5f0c"}}]})"}),
    testName);

TEST_P(GoodDocumentTest, IsTaken)
{
    EXPECT_EQ(faultWith(GetParam().content), std::nullopt);
}

class BadDocumentTest : public testing::TestWithParam<Document>
{
};

INSTANTIATE_TEST_SUITE_P(
    Documents, BadDocumentTest,
    testing::Values(
        Document{"AnUnknownNode", R"({"type":"poem"})"},
        Document{"TextOutsideAParagraph", R"({"type":"text","text":"a"})"},
        Document{"AnEmptyText", R"({"type":"paragraph","content":[{"type":"text","text":""}]})"},
        Document{"AnEmptyList", R"({"type":"bulletList","content":[]})"},
        Document{
            "AHeadingInAListItem",
            R"({"type":"bulletList","content":[{"type":"listItem","content":[{"type":"heading","attrs":{"level":1}}]}]})"},
        Document{"AHeadingWithoutALevel", R"({"type":"heading"})"},
        Document{"AHeadingOfLevelSeven", R"({"type":"heading","attrs":{"level":7}})"},
        Document{
            "BoldCode",
            R"({"type":"paragraph","content":[{"type":"text","text":"a","marks":[{"type":"code"},{"type":"strong"}]}]})"},
        Document{
            "ALinkToNowhere",
            R"({"type":"paragraph","content":[{"type":"text","text":"a","marks":[{"type":"link","attrs":{}}]}]})"},
        Document{
            "AMarkTwice",
            R"({"type":"paragraph","content":[{"type":"text","text":"a","marks":[{"type":"em"},{"type":"em"}]}]})"},
        Document{
            "MarksInACodeBlock",
            R"({"type":"codeBlock","content":[{"type":"text","text":"a","marks":[{"type":"em"}]}]})"},
        Document{"AMentionOfNobody",
                 R"({"type":"paragraph","content":[{"type":"mention","attrs":{"text":"@x"}}]})"},
        Document{
            "ATableInAQuote",
            R"({"type":"blockquote","content":[{"type":"table","content":[{"type":"tableRow"}]}]})"}),
    testName);

TEST_P(BadDocumentTest, IsRefused)
{
    EXPECT_NE(faultWith(GetParam().content), std::nullopt);
}

TEST(DocumentCheckTest, OnlyADocumentOfVersionOneIsADocument)
{
    EXPECT_TRUE(faultOf(QJsonObject{{u"type"_s, u"doc"_s}, {u"content"_s, QJsonValue()}}));
    EXPECT_TRUE(faultOf(QJsonValue(u"texte"_s)));
    EXPECT_TRUE(faultOf(QJsonObject{{u"type"_s, u"paragraph"_s}, {u"version"_s, 1}}));
}

} // namespace
