#include "richtext/markdown/InlineParser.h"

#include <array>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

using Markdown::InlineRun;
using Markdown::inlineRuns;
using Markdown::InlineStyle;

InlineStyle strong()
{
    return {.strong = true};
}

InlineStyle struckThrough()
{
    return {.struckThrough = true};
}

InlineStyle link(const QString &target)
{
    return {.link = target};
}

struct ShortLine
{
    QString line;
    InlineRun run;
};

class CharacterOfMarkup : public testing::TestWithParam<ShortLine>
{
};

} // namespace

TEST_P(CharacterOfMarkup, IsNotOverlooked)
{
    EXPECT_EQ(inlineRuns(GetParam().line), QList<InlineRun>{GetParam().run});
}

INSTANTIATE_TEST_SUITE_P(
    InlineParser, CharacterOfMarkup,
    testing::Values(ShortLine{u"**é**"_s, {u"é"_s, strong()}},
                    ShortLine{u"__é__"_s, {u"é"_s, strong()}},
                    ShortLine{u"~~é~~"_s, {u"é"_s, struckThrough()}},
                    ShortLine{u"`é`"_s, {u"é"_s, {.code = true}}},
                    ShortLine{u"[é](b)"_s, {u"é"_s, link(u"b"_s)}},
                    ShortLine{u"<https://b.fr>"_s, {u"https://b.fr"_s, link(u"https://b.fr"_s)}},
                    ShortLine{u"é &amp; b"_s, {u"é & b"_s, {}}},
                    ShortLine{u"é \\. b"_s, {u"é . b"_s, {}}},
                    ShortLine{u"é"_s + QChar(0), {u"é\uFFFD"_s, {}}},
                    ShortLine{u"é"_s + QChar(0xD83D), {u"é\uFFFD"_s, {}}},
                    ShortLine{QChar(0xDE80) + u"é"_s, {u"\uFFFDé"_s, {}}},
                    ShortLine{u"**é**"_s.replace(u'é', QChar(0xDE80)), {u"\uFFFD"_s, strong()}}));

TEST(InlineParser, ALineThatNeedsMuchMemoryIsReadLikeAShortOne)
{
    constexpr qsizetype count = 20'000;
    const QList<InlineRun> shortLine = inlineRuns(u"**a** ~~b~~ "_s);
    const QList<InlineRun> longLine = inlineRuns(u"**a** ~~b~~ "_s.repeated(count));
    ASSERT_EQ(shortLine.size(), 4);
    ASSERT_EQ(longLine.size(), 4 * count);
    for (qsizetype i = 0; i < longLine.size(); ++i)
        ASSERT_EQ(longLine.at(i), shortLine.at(i % 4)) << i;
    EXPECT_EQ(inlineRuns(u"**a** ~~b~~ "_s), shortLine);
}

TEST(InlineParser, LinesReadOnSeveralThreadsDoNotMix)
{
    constexpr int count = 300;
    const auto lineOf = [](int number) {
        return u"**a%1** `b%1` [c%1](d%1) ~~e%1~~"_s.arg(number);
    };
    std::vector<QList<InlineRun>> expected;
    expected.reserve(count);
    for (int i = 0; i < count; ++i)
        expected.push_back(inlineRuns(lineOf(i)));
    std::array<int, 4> different{};
    std::vector<std::thread> threads;
    threads.reserve(different.size());
    for (int &failed : different) {
        threads.emplace_back([&] {
            for (int i = 0; i < count; ++i)
                failed += inlineRuns(lineOf(i)) == expected.at(std::size_t(i)) ? 0 : 1;
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(different, (std::array<int, 4>{}));
}
