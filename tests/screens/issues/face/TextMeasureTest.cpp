#include "screens/issues/face/TextMeasure.h"

#include "screens/theme/TypeScale.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QFont font()
{
    return TypeScale::fontOf(TypeScale::Body);
}

const QString longTitle =
    u"Le bouton de connexion ne répond plus après une mise en veille prolongée du poste"_s;

} // namespace

TEST(TextMeasure, ATextThatFitsIsShownWhole)
{
    const double width = TextMeasure::width(longTitle, font());
    EXPECT_EQ(TextMeasure::line(longTitle, font(), width + 1)->text(), longTitle);
    EXPECT_EQ(TextMeasure::line(longTitle, font(), -1)->text(), longTitle);
}

TEST(TextMeasure, ATextThatExceedsTheLimitEndsWithAnEllipsisWithinIt)
{
    const auto line = TextMeasure::line(longTitle, font(), 200);
    EXPECT_TRUE(line->text().endsWith(u'…'));
    EXPECT_LE(line->lineAt(0).naturalTextWidth(), 200);
    EXPECT_GT(line->lineAt(0).naturalTextWidth(), 170);
}

TEST(TextMeasure, ALimitThatIsTooNarrowForAnyLetterIsNoError)
{
    EXPECT_EQ(TextMeasure::line(longTitle, font(), 0)->text(), QString());
    EXPECT_EQ(TextMeasure::line(longTitle, font(), 3)->text(), QString());
    EXPECT_EQ(TextMeasure::wrapped(longTitle, font(), 0, 3).size(), 3);
    EXPECT_EQ(TextMeasure::wrapped(longTitle, font(), -24, 3).size(), 3);
}

TEST(TextMeasure, ARightToLeftTextBeginsAtTheLeft)
{
    const auto line = TextMeasure::line(u"שלום עולם"_s, font(), 300);
    EXPECT_EQ(line->lineAt(0).naturalTextRect().left(), 0);
}

TEST(TextMeasure, AnEmptyTextHasNoWidth)
{
    EXPECT_EQ(TextMeasure::width({}, font()), 0);
    EXPECT_EQ(TextMeasure::line({}, font(), 100)->text(), QString());
}

TEST(TextMeasure, WrappedLinesFitAndTogetherAreTheText)
{
    const auto lines = TextMeasure::wrapped(longTitle, font(), 220, 5);
    EXPECT_GT(lines.size(), 1);
    EXPECT_EQ(lines.join(QString()), longTitle);
    for (const QString &line : lines)
        EXPECT_LE(TextMeasure::width(line.trimmed(), font()), 220);
}

TEST(TextMeasure, WhatExceedsTheLastLineIsReplacedWithAnEllipsis)
{
    const auto lines = TextMeasure::wrapped(longTitle, font(), 120, 3);
    ASSERT_EQ(lines.size(), 3);
    EXPECT_FALSE(lines[0].contains(u'…') || lines[1].contains(u'…'));
    EXPECT_TRUE(lines[2].endsWith(u'…'));
    EXPECT_LE(TextMeasure::width(lines[2], font()), 120);
}

TEST(TextMeasure, AWordThatIsLongerThanALineIsDivided)
{
    const auto lines = TextMeasure::wrapped(QString(60, u'm'), font(), 200, 9);
    EXPECT_GT(lines.size(), 2);
    EXPECT_EQ(lines.join(QString()), QString(60, u'm'));
}
