#include "richtext/ADFMarkdown.h"

#include "richtext/ADFNodes.h"
#include "richtext/ADFQueries.h"
#include "richtext/Outline.h"

#include <QSet>
#include <QUuid>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(ADFMarkdown, EmptyTextIsADocumentWithoutElements)
{
    EXPECT_EQ(ADFMarkdown::document(QString()), ADF::document({}));
    EXPECT_TRUE(ADFMarkdown::document(QString()).content.has_value());
}

TEST(ADFMarkdown, DocumentIsOfVersionOne)
{
    EXPECT_EQ(ADFMarkdown::document(u"a"_s).version, 1);
    EXPECT_EQ(ADFMarkdown::document(u"a"_s).type, u"doc"_s);
}

TEST(ADFMarkdown, LinesGiveTheBlocksOfTheirDocument)
{
    EXPECT_EQ(ADFMarkdown::parseBlocks({u"# a"_s, u"b"_s, QString(), u"- c"_s}),
              *ADFMarkdown::document(u"# a\r\nb\n\n- c"_s).content);
    EXPECT_TRUE(ADFMarkdown::parseBlocks({}).isEmpty());
}

TEST(ADFMarkdown, RuleHasNothingButItsType)
{
    EXPECT_EQ(ADFMarkdown::parseBlocks({u"---"_s}), QList<ADFNode>{ADF::plain(u"rule")});
}

TEST(ADFMarkdown, LocalIDsAreFreshUUIDs)
{
    const auto idsOf = [](const ADFNode &document) {
        const ADFNode &list = document.content->at(0);
        QStringList ids{ADF::attribute(list, u"localId"_s).value()};
        for (const ADFNode &item : *list.content)
            ids.append(ADF::attribute(item, u"localId"_s).value());
        return ids;
    };
    const QString text = u"- [ ] a\n- [x] b"_s;
    const QStringList ids = idsOf(ADFMarkdown::document(text)) + idsOf(ADFMarkdown::document(text));
    EXPECT_EQ(QSet<QString>(ids.begin(), ids.end()).size(), 6);
    for (const QString &id : ids)
        EXPECT_FALSE(QUuid(id).isNull()) << qPrintable(id);
}

TEST(ADFMarkdown, LocalIDsComeFromTheGivenSource)
{
    const ADFNode document = ADFMarkdown::document(u"- [ ] a"_s, [] { return u"fixed"_s; });
    EXPECT_EQ(ADF::attribute(document.content->at(0), u"localId"_s), u"fixed"_s);
}

TEST(ADFMarkdown, HalfSurrogatePairsAreReplacedOneForOne)
{
    const QString text = QString(QChar(0xD83D)) + u"*a*"_s + QChar(0xDE80) + u"b"_s;
    EXPECT_EQ(outline(ADFMarkdown::inlineNodes(text)).toStdString(),
              "\"\uFFFD\"\nem \"a\"\n\"\uFFFDb\"");
}

TEST(ADFMarkdown, NullCharactersAreReplacedOneForOne)
{
    const QString text = u"a"_s + QChar(0) + QChar(0) + u"`b"_s + QChar(0) + u"`"_s;
    EXPECT_EQ(outline(ADFMarkdown::inlineNodes(text)).toStdString(),
              "\"a\uFFFD\uFFFD\"\ncode \"b\uFFFD\"");
}

TEST(ADFMarkdown, VerbatimLinesKeepEveryCodeUnit)
{
    const QString line = u"a"_s + QChar(0) + QChar(0xD83D) + u"\r\u00A0~"_s;
    EXPECT_EQ(ADF::plainText(ADFMarkdown::document(u"```\n"_s + line + u"\n```"_s)), line);
}

int depthOf(const ADFNode &node)
{
    int depth = 0;
    for (const ADFNode &child : node.content.value_or(QList<ADFNode>()))
        depth = std::max(depth, depthOf(child));
    return depth + 1;
}

QString staircase(int steps)
{
    QString text;
    for (int i = 0; i < steps; ++i)
        text += QString(i, u' ') + u"- pas %1\n"_s.arg(i);
    return text;
}

TEST(ADFMarkdown, ListsNestToTheLimit)
{
    // One level for the document, two for each list level (list and item), and one each for the paragraph and its text.
    EXPECT_EQ(depthOf(ADFMarkdown::document(staircase(ADFMarkdown::maximumListDepth))),
              1 + 2 * ADFMarkdown::maximumListDepth + 2);
}

TEST(ADFMarkdown, DeeperListsJoinTheDeepestLevelAndLoseNothing)
{
    const ADFNode document = ADFMarkdown::document(staircase(400));
    EXPECT_EQ(depthOf(document), 1 + 2 * ADFMarkdown::maximumListDepth + 2);
    EXPECT_EQ(ADF::plainText(document).count(u"pas"_s), 400);
}

TEST(ADFMarkdown, KindsMayAlternateBelowTheLimit)
{
    QString text = staircase(150);
    for (int i = 150; i < 160; ++i)
        text += QString(i, u' ') + (i % 2 ? u"1. un\n"_s : u"- un\n"_s);
    EXPECT_EQ(ADF::plainText(ADFMarkdown::document(text)).count(u"un"_s), 10);
}

} // namespace
