#include "richtext/ADFCoding.h"
#include "richtext/ADFMarkdown.h"
#include "richtext/ADFMentions.h"
#include "richtext/ADFNodes.h"
#include "richtext/ADFQueries.h"
#include "richtext/LinearTime.h"

#include <algorithm>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using Work = std::function<void(const QString &)>;

void expectLinear(const Work &work, const std::function<QString(qsizetype)> &textOf, qsizetype size)
{
    const PreparedWork prepare = [&](qsizetype length) {
        return [&work, text = textOf(length)] { work(text); };
    };
    ::expectLinear(prepare, size);
}

void parse(const QString &text)
{
    ADFMarkdown::document(text);
}

QString repeated(const QString &unit, qsizetype size)
{
    return unit.repeated(size / unit.size());
}

class HostileLine : public testing::TestWithParam<QString>
{
};

TEST_P(HostileLine, TakesLinearTime)
{
    expectLinear(
        parse, [](qsizetype size) { return u"a "_s + repeated(GetParam(), size); }, 25'000);
}

TEST_P(HostileLine, TakesLinearTimeAtTheStartOfALine)
{
    expectLinear(parse, [](qsizetype size) { return repeated(GetParam(), size); }, 25'000);
}

INSTANTIATE_TEST_SUITE_P(Markdown, HostileLine,
                         testing::Values(u"*"_s, u"_"_s, u"**"_s, u"***"_s, u"["_s, u"]"_s, u">"_s,
                                         u"> "_s, u"`"_s, u"~"_s, u"~~"_s, u"<"_s, u"!["_s, u"]("_s,
                                         u"[]("_s, u"*a_"_s, u"_a*"_s, u"*a **"_s, u"**a *a "_s,
                                         u"a**b"_s, u"a*_"_s, u"[a](b"_s, u"[a](<b"_s, u"[a](("_s,
                                         u"[a](b \""_s, u"[a](b)"_s, u"[[a](b)]"_s, u"`a``"_s,
                                         u"`\\"_s, u"<a "_s, u"<a b=\""_s, u"</a "_s, u"<!--"_s,
                                         u"<?"_s, u"<!A "_s, u"<![CDATA["_s, u"<a:"_s, u"a@b"_s,
                                         u"&"_s, u"&amp"_s, u"&amp;"_s, u"\\"_s, u"\\~"_s, u"~ "_s,
                                         u"~~a"_s, u"a~~*"_s, u"{"_s, u"\r"_s, u"#"_s, u"- "_s,
                                         u"-"_s, u"1. "_s, u"9"_s, u" "_s, u"\t"_s, u"é*"_s,
                                         u"🚀_"_s, u"*[**["_s, u"mot "_s));

class HostileLines : public testing::TestWithParam<QString>
{
};

TEST_P(HostileLines, TakeLinearTime)
{
    expectLinear(parse, [](qsizetype size) { return repeated(GetParam() + u'\n', size); }, 20'000);
}

INSTANTIATE_TEST_SUITE_P(Markdown, HostileLines,
                         testing::Values(u""_s, u"a"_s, u"> "_s, u"> a"_s, u"> > > >"_s, u"- a"_s,
                                         u"- [x] a"_s, u"- a\n1. b"_s, u"- a\n  - b\n    - c"_s,
                                         u"# a"_s, u"```"_s, u"---"_s, u"*a* `b` [c](d)"_s,
                                         u"[a]: b"_s, u"<div>"_s, u"a\n\nb"_s, u"\r"_s));

void countPairs(const QString &text)
{
    qsizetype pairs = 0;
    for (const QChar one : text)
        pairs += std::ranges::count(text, one);
    ASSERT_EQ(pairs, text.size() * text.size());
}

TEST(HostileInput, MeterNoticesQuadraticWork)
{
    EXPECT_NONFATAL_FAILURE(
        expectLinear(
            countPairs, [](qsizetype size) { return QString(size, u'a'); }, 1'500),
        "as long");
}

TEST(HostileInput, GrowingIndentationTakesLinearTime)
{
    const auto stairs = [](qsizetype size) {
        QString text;
        for (int indent = 0; text.size() < size; ++indent)
            text += QString(indent, u' ') + u"- a\n"_s;
        return text;
    };
    expectLinear(parse, stairs, 50'000);
}

TEST(HostileInput, SawtoothIndentationTakesLinearTime)
{
    const auto teeth = [](qsizetype size) {
        QString text;
        for (int line = 0; text.size() < size; ++line)
            text += QString((line * 37) % 150, u' ') + (line % 3 ? u"- a\n"_s : u"1. a\n"_s);
        return text;
    };
    expectLinear(parse, teeth, 50'000);
}

TEST(HostileInput, GrowingBacktickRunsTakeLinearTime)
{
    const auto runs = [](qsizetype size) {
        QString text;
        for (int length = 1; text.size() < size; ++length)
            text += QString(length, u'`') + u"a"_s;
        return text;
    };
    expectLinear(parse, runs, 50'000);
}

TEST(HostileInput, DeeplyNestedLinksTakeLinearTime)
{
    const auto links = [](qsizetype size) {
        return repeated(u"["_s, size / 4) + repeated(u"](a)"_s, size);
    };
    expectLinear(parse, links, 25'000);
}

TEST(HostileInput, DeeplyNestedImagesAndEmphasisDoNotOverflow)
{
    for (const QString &opening : {u"!["_s, u"*a "_s, u"**a "_s, u"[a "_s}) {
        const QString closing =
            opening.startsWith(u'*') ? opening.trimmed().chopped(2) + u" b*"_s : u"](c)"_s;
        EXPECT_FALSE(
            ADFMarkdown::inlineNodes(opening.repeated(50'000) + u"mot"_s + closing.repeated(50'000))
                .isEmpty());
    }
}

TEST(HostileInput, NestedQuotesDoNotOverflow)
{
    EXPECT_TRUE(ADFMarkdown::document(QString(1'000'000, u'>')).content->isEmpty());
    EXPECT_TRUE(ADFMarkdown::document(u"> "_s.repeated(500'000)).content->isEmpty());
}

TEST(HostileInput, DeepestDocumentOfMarkdownReadsBack)
{
    QString text = u"a\n"_s;
    for (int indent = 0; indent < 2000; ++indent)
        text += QString(indent, u' ') + u"- a\n"_s;
    const ADFNode document = ADFMarkdown::document(text);
    EXPECT_EQ(ADFCoding::decodeNode(ADFCoding::encode(document)).value(), document);
    EXPECT_NE(ADFCoding::jsonValueFrom(document), JSONValue());
}

TEST(HostileInput, MentionsTakeLinearTime)
{
    JiraUser user;
    user.name = u"Ann"_s;
    const Work link = [&](const QString &text) {
        ADF::linkingMentions(ADF::container(u"p", {ADF::text(text)}), {user});
    };
    for (const QString &unit : {u"@"_s, u"@Ann "_s, u"@Ann"_s, u"@Anna "_s, u"a"_s})
        expectLinear(link, [&](qsizetype size) { return repeated(unit, size); }, 20'000);
}

TEST(HostileInput, PlainTextTakesLinearTime)
{
    const Work read = [](const QString &text) { ADF::plainText(ADFMarkdown::document(text)); };
    expectLinear(read, [](qsizetype size) { return repeated(u"*a* b\n- c\n"_s, size); }, 20'000);
}

TEST(HostileInput, CodingTakesLinearTime)
{
    const Work code = [](const QString &text) {
        ADFCoding::decodeNode(ADFCoding::encode(ADF::document({ADF::text(text)}))).value();
    };
    for (const QString &unit : {u"a"_s, u"\""_s, u"é"_s, u"\u0001"_s})
        expectLinear(code, [&](qsizetype size) { return repeated(unit, size); }, 50'000);
}

} // namespace
