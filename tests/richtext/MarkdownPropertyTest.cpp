#include "richtext/ADFCoding.h"
#include "richtext/ADFMarkdown.h"
#include "richtext/ADFQueries.h"

#include <gtest/gtest.h>
#include <random>

using namespace Qt::StringLiterals;

namespace {

using Random = std::mt19937;

const QStringList markup{u"*"_s,           u"**"_s,  u"_"_s,
                         u"__"_s,          u"`"_s,   u"``"_s,
                         u"~"_s,           u"~~"_s,  u"["_s,
                         u"]"_s,           u"("_s,   u")"_s,
                         u"!"_s,           u"<"_s,   u">"_s,
                         u"\\"_s,          u"&"_s,   u"&amp;"_s,
                         u"&#0;"_s,        u"# "_s,  u"> "_s,
                         u"- "_s,          u"1. "_s, u"[ ] "_s,
                         u"[x] "_s,        u"```"_s, u"---"_s,
                         u"\n"_s,          u"\n"_s,  u"\n\n"_s,
                         u"\r\n"_s,        u"\r"_s,  u" "_s,
                         u"    "_s,        u"\t"_s,  u"a"_s,
                         u"mot"_s,         u"é"_s,   u"🚀"_s,
                         u"\u00A0"_s,      u"{"_s,   u"}"_s,
                         u"\v"_s,          u"\f"_s,  u"](b)"_s,
                         u"<a:b>"_s,       u"<b>"_s, u"<!--"_s,
                         u"\u0301"_s,      u"@"_s,   QString(QChar(0xD83D)),
                         QString(QChar(0))};

QString randomText(Random &random, const QStringList &pieces, int longest)
{
    QString text;
    for (int count = int(random() % unsigned(longest)); count > 0; --count)
        text += pieces[qsizetype(random() % unsigned(pieces.size()))];
    return text;
}

void expectWellFormed(const ADFNode &node)
{
    EXPECT_FALSE(node.type.isEmpty());
    if (node.type == u"text")
        EXPECT_FALSE(node.text.value_or(QString()).isEmpty());
    if (node.marks)
        EXPECT_FALSE(node.marks->isEmpty());
    for (const ADFNode &child : node.content.value_or(QList<ADFNode>()))
        expectWellFormed(child);
}

TEST(MarkdownProperty, AnyTextGivesAWellFormedDocumentThatReadsBack)
{
    Random random(20'240'229);
    for (int i = 0; i < 5000; ++i) {
        const QString text = randomText(random, markup, 60);
        SCOPED_TRACE(text.toStdString());
        const ADFNode document = ADFMarkdown::document(text, [] { return u"id"_s; });
        expectWellFormed(document);
        const auto again = ADFCoding::decodeNode(ADFCoding::encode(document));
        ASSERT_TRUE(again);
        EXPECT_EQ(ADFCoding::encode(*again), ADFCoding::encode(document));
    }
}

/// Uses lines of characters that have no meaning in Markdown at any position.
TEST(MarkdownProperty, TextWithoutMarkupComesBackWord)
{
    const QStringList harmless{u"a"_s, u"mot"_s, u"é"_s, u"🚀"_s, u"\u00A0"_s, u"{"_s,
                               u"}"_s, u"."_s,   u","_s, u"="_s,  u"|"_s,      u"\t"_s,
                               u" "_s, u"(x)"_s, u"$"_s, u"%"_s,  u"~ x"_s,    u"\r\u00A0"_s};
    Random random(7);
    for (int i = 0; i < 3000; ++i) {
        const QString line = u"x"_s + randomText(random, harmless, 30);
        const QList<ADFNode> nodes = ADFMarkdown::inlineNodes(line);
        ASSERT_EQ(nodes.size(), 1) << qPrintable(line);
        EXPECT_EQ(nodes[0].text, line);
        EXPECT_EQ(ADF::plainText(ADFMarkdown::document(line)), line);
    }
}

/// Markup may be removed, but words must be kept in order.
TEST(MarkdownProperty, WordsSurviveInOrder)
{
    const QStringList pieces{u"*"_s, u"**"_s, u"_"_s, u"`"_s, u"~"_s,  u"~~"_s,
                             u"["_s, u"]"_s,  u"!"_s, u" "_s, u"\\"_s, u"&"_s};
    Random random(11);
    for (int i = 0; i < 3000; ++i) {
        QString line;
        QString words;
        for (int word = 0; word < 8; ++word) {
            const QString name = u"m%1"_s.arg(word);
            line += randomText(random, pieces, 4) + name;
            words += name;
        }
        QString letters;
        for (const QChar character :
             ADF::plainText(ADFMarkdown::document(u"x "_s + line)).sliced(2)) {
            if (character.isLetterOrNumber())
                letters += character;
        }
        EXPECT_EQ(letters, words) << qPrintable(line);
    }
}

/// Each line must give the same result alone and among other lines, so that no state crosses a line break.
TEST(MarkdownProperty, LinesAreIndependent)
{
    QStringList pieces = markup;
    pieces.removeIf([](const QString &piece) { return piece.contains(u'\n'); });
    Random random(3);
    for (int i = 0; i < 2000; ++i) {
        const QString first = randomText(random, pieces, 12);
        const QString second = randomText(random, pieces, 12);
        QList<ADFNode> nodes = ADFMarkdown::inlineNodes(first);
        nodes += ADFMarkdown::inlineNodes(u"\n"_s);
        nodes += ADFMarkdown::inlineNodes(second);
        EXPECT_EQ(ADFMarkdown::inlineNodes(first + u'\n' + second), nodes)
            << qPrintable(first + u'\n' + second);
    }
}

} // namespace
