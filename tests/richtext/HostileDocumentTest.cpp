#include "richtext/ADFMarkdown.h"
#include "richtext/ADFNodes.h"
#include "richtext/LinearTime.h"
#include "richtext/RandomDocuments.h"
#include "richtext/WritingOracle.h"
#include "richtext/losses/MarkdownLosses.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QStringList kinds{u"paragraph"_s,   u"bulletList"_s, u"orderedList"_s, u"listItem"_s,
                        u"taskList"_s,    u"codeBlock"_s,  u"blockquote"_s,  u"table"_s,
                        u"panel"_s,       u"heading"_s,    u"text"_s,        u"mediaSingle"_s,
                        u"layoutColumn"_s};

UserCalendar calendar()
{
    return {{QLocale::French, QLocale::France}, QTimeZone("Europe/Paris")};
}

ADFNode repeated(const QString &type, const ADFNode &child, qsizetype count)
{
    return ADF::container(type, QList<ADFNode>(count, child));
}

/// A node inside nodes of the given kinds, in turn.
ADFNode nested(const QStringList &types, qsizetype depth, ADFNode node)
{
    for (qsizetype i = 0; i < depth; ++i)
        node = ADF::container(types[i % types.size()], {std::move(node)});
    return node;
}

/// A document with one node in each of many levels, some of them beside the next level.
ADFNode deepDocument(Random &random, int depth)
{
    ADFNode node = ADF::text(u"fond"_s);
    for (int i = 0; i < depth; ++i) {
        QList<ADFNode> content{std::move(node)};
        if (random() % 4 == 0)
            content.prepend(ADF::container(u"paragraph", {ADF::text(u"mot"_s)}));
        node = ADF::container(kinds[qsizetype(random() % unsigned(kinds.size()))], content);
    }
    return ADF::document({node});
}

void expectLinearWriting(const std::function<ADFNode(qsizetype)> &documentOf, qsizetype size)
{
    const PreparedWork prepare = [&](qsizetype count) {
        return [document = ADF::document({documentOf(count)})] {
            ADFMarkdown::markdown(document, calendar());
        };
    };
    expectLinear(prepare, size);
}

class HostileDocument : public testing::TestWithParam<QString>
{
};

TEST_P(HostileDocument, WithManyChildrenTakesLinearTime)
{
    const ADFNode child =
        ADF::container(u"listItem", {ADF::container(u"paragraph", {ADF::text(u"a\nb"_s)})});
    expectLinearWriting([&](qsizetype size) { return repeated(GetParam(), child, size); }, 2'500);
}

TEST_P(HostileDocument, WithOneLongTextTakesLinearTime)
{
    const auto document = [](qsizetype size) {
        return ADF::container(GetParam(), {ADF::text(u"a\n"_s.repeated(size / 2))});
    };
    expectLinearWriting(document, 250'000);
}

TEST_P(HostileDocument, WithEmptyLevelsTakesLinearTime)
{
    const auto document = [](qsizetype size) {
        return nested({GetParam()}, size, ADF::plain(u"panel"));
    };
    expectLinearWriting(document, 250);
}

INSTANTIATE_TEST_SUITE_P(Markdown, HostileDocument, testing::ValuesIn(kinds),
                         [](const auto &info) { return info.param.toStdString(); });

TEST(HostileDocuments, OfThousandLevelsAreWritten)
{
    Random random(5);
    for (int i = 0; i < 50; ++i) {
        const ADFNode document = deepDocument(random, 1'000);
        EXPECT_EQ(ADFMarkdown::markdown(document, calendar()),
                  markdownOracle(document, calendar()));
    }
}

TEST(HostileDocuments, OfThousandNestedInlineNodesAreWritten)
{
    const ADFNode document = ADF::document({nested({u"inconnu"_s}, 999, ADF::text(u"a"_s))});
    EXPECT_EQ(ADFMarkdown::markdown(document, calendar()), u"a"_s);
    const ADFNode paragraph = ADF::container(
        u"paragraph", {nested({u"inconnu"_s}, 999, ADF::text(u"a"_s, {{u"em"_s, {}}}))});
    EXPECT_EQ(ADFMarkdown::markdown(ADF::document({paragraph}), calendar()), u"*a*"_s);
}

TEST(HostileDocuments, OfTenThousandChildrenAreComplete)
{
    const ADFNode item =
        ADF::container(u"listItem", {ADF::container(u"paragraph", {ADF::text(u"a"_s)})});
    const QString text = ADFMarkdown::markdown(
        ADF::document({repeated(u"orderedList"_s, item, 10'000)}), calendar());
    EXPECT_EQ(text.count(u'\n'), 9'999);
    EXPECT_TRUE(text.endsWith(u"\n10000. a"_s));
}

TEST(HostileDocuments, WithAMegabyteInOneTextAreComplete)
{
    const QString megabyte = u"mot "_s.repeated(250'000);
    const ADFNode paragraph = ADF::container(u"paragraph", {ADF::text(megabyte, {{u"em"_s, {}}})});
    EXPECT_EQ(ADFMarkdown::markdown(ADF::document({paragraph}), calendar()),
              u'*' + megabyte + u'*');
}

TEST(HostileDocuments, AreCountedInLinearTime)
{
    const ADFNode item = ADF::container(
        u"listItem", {ADF::container(u"paragraph", {ADF::text(u"*a_ [b"_s), ADF::plain(u"mention"),
                                                    ADF::plain(u"emoji")})});
    for (const QString &kind : kinds) {
        const PreparedWork prepare = [&](qsizetype count) {
            return [document = ADF::document({repeated(kind, item, count)})] {
                ADFMarkdown::losses(document, {});
            };
        };
        expectLinear(prepare, 500);
    }
}

TEST(HostileDocuments, OfThousandLevelsAreCounted)
{
    Random random(6);
    for (int i = 0; i < 20; ++i)
        EXPECT_FALSE(ADFMarkdown::losses(deepDocument(random, 1'000), {}).isEmpty());
}

TEST(HostileDocuments, QuotedLinesTakeTimeInProportionToTheText)
{
    // The text of nested quotes grows with the square of their number, so their number stays the same.
    const auto document = [](qsizetype size) {
        const ADFNode text = ADF::text(u"a\n"_s.repeated(size));
        return nested({u"blockquote"_s}, 50, ADF::container(u"paragraph", {text}));
    };
    expectLinearWriting(document, 2'500);
}

} // namespace
