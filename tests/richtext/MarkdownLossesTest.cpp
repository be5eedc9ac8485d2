#include "richtext/losses/MarkdownLosses.h"

#include "richtext/ADFMarkdown.h"
#include "richtext/ADFNodes.h"
#include "richtext/CaseFile.h"
#include "richtext/Outline.h"
#include "richtext/RandomDocuments.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

JiraUser user(const QString &id, const QString &name)
{
    JiraUser user;
    user.id = id;
    user.name = name;
    return user;
}

MarkdownLosses lossesOf(const QString &outline)
{
    const QList<JiraUser> known{user(u"1"_s, u"Léa Roy"_s), user(u"2"_s, u"Léa"_s)};
    return ADFMarkdown::losses(ADF::document(nodesOf(outline)), known);
}

std::string sentence(const QString &outline)
{
    return lossesOf(outline).sentence().toStdString();
}

/// The blocks without what a reader cannot see: line breaks at the end of a paragraph, and paragraphs without text.
QList<ADFNode> visible(QList<ADFNode> blocks)
{
    for (ADFNode &block : blocks) {
        if (block.type == u"blockquote")
            block.content = visible(*block.content);
        while (block.type == u"paragraph" && !block.content->isEmpty() &&
               block.content->last().type == u"hardBreak")
            block.content->removeLast();
    }
    blocks.removeIf([](const ADFNode &block) {
        return block.type == u"paragraph" && block.content->isEmpty();
    });
    return blocks;
}

class LossCases : public testing::TestWithParam<Case>
{
};

TEST_P(LossCases, AreNamed)
{
    EXPECT_EQ(sentence(GetParam().input), GetParam().expected.toStdString());
}

INSTANTIATE_TEST_SUITE_P(Markdown, LossCases,
                         testing::ValuesIn(casesIn(u"markdown"_s, u"losses"_s)),
                         [](const auto &info) { return testName(info.param); });

TEST(MarkdownLosses, EachKindHasWordsOfItsOwn)
{
    QSet<QString> words;
    for (int kind = 0; kind <= int(MarkdownLoss::Other); ++kind) {
        for (const int count : {1, 2}) {
            MarkdownLosses losses;
            losses.add(MarkdownLoss(kind), count);
            words.insert(losses.sentence());
        }
    }
    EXPECT_EQ(words.size(), 2 * (int(MarkdownLoss::Other) + 1));
}

TEST(MarkdownLosses, TheSentenceKeepsTheOrderOfTheKinds)
{
    MarkdownLosses losses;
    losses.add(MarkdownLoss::Emoji, 12);
    losses.add(MarkdownLoss::Table);
    losses.add(MarkdownLoss::Picture, 2);
    EXPECT_EQ(losses.sentence(), u"2 images, 1 tableau, 12 emojis"_s);
}

TEST(MarkdownLosses, ADocumentThatMarkdownRepresentsHasNone)
{
    Random random(47);
    for (int i = 0; i < 3'000; ++i) {
        const ADFNode document = plainDocument(random);
        const MarkdownLosses losses = ADFMarkdown::losses(document, {});
        ASSERT_TRUE(losses.isEmpty()) << losses.sentence().toStdString() << '\n'
                                      << outline(*document.content).toStdString();
    }
}

TEST(MarkdownLosses, AnyDocumentIsCountedTheSameEachTime)
{
    Random random(48);
    for (int i = 0; i < 3'000; ++i) {
        const ADFNode document = anyDocument(random, 1 + i % 6);
        const MarkdownLosses losses = ADFMarkdown::losses(document, {});
        EXPECT_EQ(losses.sentence().isEmpty(), losses.isEmpty());
        EXPECT_EQ(ADFMarkdown::losses(document, {}), losses);
    }
}

/// What a text is read as is written and read again. Either nothing changes, or a loss is counted.
TEST(MarkdownLosses, ADocumentThatChangesHasOne)
{
    const QStringList pieces{u"*"_s,  u"**"_s,    u"_"_s,   u"`"_s,    u"~~"_s,   u"["_s,
                             u"]"_s,  u"(b)"_s,   u"\\"_s,  u"\n"_s,   u"\n"_s,   u"\n\n"_s,
                             u"- "_s, u"  - "_s,  u"1. "_s, u"# "_s,   u"> "_s,   u" "_s,
                             u"a"_s,  u"mot"_s,   u"é"_s,   u"```"_s,  u"[x] "_s, u"&amp;"_s,
                             u"<"_s,  u"---\n"_s, u"\t"_s,  u"<a:b>"_s};
    const UserCalendar calendar{QLocale::c(), QTimeZone::utc()};
    const auto read = [](const QString &text) {
        return ADFMarkdown::document(text, [] { return u"id"_s; });
    };
    Random random(49);
    int unchanged = 0;
    int counted = 0;
    for (int i = 0; i < 20'000; ++i) {
        QString text;
        for (int count = int(random() % 14); count > 0; --count)
            text += pieces[qsizetype(random() % unsigned(pieces.size()))];
        const ADFNode document = read(text);
        const QString markdown = ADFMarkdown::markdown(document, calendar);
        const bool changes =
            outline(visible(*read(markdown).content)) != outline(visible(*document.content));
        const MarkdownLosses losses = ADFMarkdown::losses(document, {});
        unchanged += changes ? 0 : 1;
        counted += losses.isEmpty() ? 0 : 1;
        if (losses.isEmpty())
            ASSERT_FALSE(changes) << text.toStdString() << "\n--- read and written:\n"
                                  << markdown.toStdString();
    }
    EXPECT_GT(unchanged, 5'000);
    EXPECT_GT(counted, 300);
}

} // namespace
