#include "screens/documents/content/TextParts.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

InlineRuns runsOf(const QString &text)
{
    return {{.text = text}};
}

/// The whole text again.
QString joined(const std::vector<TextPart> &parts)
{
    QString text;
    for (const auto &part : parts)
        text += part.joint + ADFInline::plainText(part.runs);
    return text;
}

} // namespace

TEST(TextParts, OfAShortTextAreTheTextItself)
{
    const auto parts = textParts(runsOf(u"court"_s));
    ASSERT_EQ(parts.size(), 1U);
    EXPECT_EQ(parts[0].runs, runsOf(u"court"_s));
}

TEST(TextParts, OfNoTextAreOneEmptyPart)
{
    EXPECT_EQ(textParts({}).size(), 1U);
}

TEST(TextParts, DivideAtLineFeedsAndKeepEveryCharacter)
{
    const QString text = (QString(99, u'x') + u'\n').repeated(200);
    const auto parts = textParts(runsOf(text));
    ASSERT_GT(parts.size(), 4U);
    EXPECT_EQ(parts[1].joint, u"\n"_s);
    EXPECT_TRUE(ADFInline::plainText(parts[1].runs).startsWith(u'x'));
    EXPECT_EQ(joined(parts), text);
}

TEST(TextParts, DivideAtSpacesAndKeepEveryCharacter)
{
    const QString text = u"mot "_s.repeated(5000);
    const auto parts = textParts(runsOf(text));
    ASSERT_GT(parts.size(), 4U);
    EXPECT_TRUE(ADFInline::plainText(parts[0].runs).endsWith(u' '));
    EXPECT_EQ(joined(parts), text);
}

TEST(TextParts, NeverDivideACharacter)
{
    const QString text = u"a"_s + u"\U0001F600"_s.repeated(9000);
    const auto parts = textParts(runsOf(text));
    for (const auto &part : parts) {
        EXPECT_FALSE(ADFInline::plainText(part.runs).front().isLowSurrogate());
        EXPECT_FALSE(ADFInline::plainText(part.runs).back().isHighSurrogate());
    }
    EXPECT_EQ(joined(parts), text);
}

TEST(TextParts, KeepTheStylesOfTheRuns)
{
    InlineRuns runs{{.text = QString(3000, u'a'), .isStrong = true},
                    {.text = QString(3000, u'b'), .isCode = true}};
    const auto parts = textParts(runs);
    ASSERT_EQ(parts.size(), 2U);
    ASSERT_EQ(parts[0].runs.size(), 2);
    EXPECT_TRUE(parts[0].runs[0].isStrong);
    EXPECT_TRUE(parts[1].runs[0].isCode);
}
