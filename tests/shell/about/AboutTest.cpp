#include "shell/about/About.h"

#include "shell/about/AboutTexts.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

TEST(AboutTextsTest, AShortTimeHasOneDecimalAfterAComma)
{
    EXPECT_EQ(AboutTexts::time(14'249us), u"14,2\u00A0ms"_s);
    EXPECT_EQ(AboutTexts::time(14'250us), u"14,3\u00A0ms"_s);
    EXPECT_EQ(AboutTexts::time(0ns), u"0,0\u00A0ms"_s);
}

TEST(AboutTextsTest, FromATenthOfASecondATimeHasNoDecimals)
{
    EXPECT_EQ(AboutTexts::time(99'949us), u"99,9\u00A0ms"_s);
    EXPECT_EQ(AboutTexts::time(99'950us), u"100\u00A0ms"_s);
    EXPECT_EQ(AboutTexts::time(412'400us), u"412\u00A0ms"_s);
    EXPECT_EQ(AboutTexts::time(1234ms), u"1\u202F234\u00A0ms"_s);
}

TEST(AboutTextsTest, WhatIsNotMeasuredIsSaid)
{
    EXPECT_EQ(AboutTexts::time({}), u"Pas encore mesuré"_s);
    EXPECT_EQ(AboutTexts::memory({}), u"Inconnue"_s);
}

TEST(AboutTextsTest, MemoryIsGivenInPowersOfAThousand)
{
    EXPECT_EQ(AboutTexts::memory(182'400'000), u"182,4\u00A0Mo"_s);
}

TEST(AboutTextsTest, AProgramOutsideABundleHasTheVersionOfTheSources)
{
    EXPECT_EQ(AboutTexts::version(u"1.4"_s, u"140"_s), u"Version 1.4 (build 140)"_s);
    const QString own = AboutTexts::version(u"dev"_s, u"0"_s);
    EXPECT_TRUE(QRegularExpression(u"^Version \\d+\\.\\d+\\.\\d+$"_s).match(own).hasMatch())
        << own.toStdString();
}

TEST(AboutTest, TheSlowestKeyStaysAndTheLastOneChanges)
{
    About about(nullptr);
    EXPECT_EQ(about.lastKey(), u"Pas encore mesuré"_s);
    about.add(14ms);
    about.add(48ms);
    about.add(9ms);
    EXPECT_EQ(about.lastKey(), u"9,0\u00A0ms"_s);
    EXPECT_EQ(about.slowestKey(), u"48,0\u00A0ms"_s);
}

} // namespace
