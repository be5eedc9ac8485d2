#include "update/ReleaseOrder.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

bool isNewer(const QString &version, const QString &build, const QString &currentVersion,
             const QString &currentBuild)
{
    return ReleaseOrder::isNewer({.version = version, .build = build}, currentVersion,
                                 currentBuild);
}

int sign(int number)
{
    return (number > 0) - (number < 0);
}

TEST(ReleaseOrderTest, TheSameBuildAndVersionIsNotNewer)
{
    EXPECT_FALSE(isNewer(u"1.4"_s, u"121"_s, u"1.4"_s, u"121"_s));
}

TEST(ReleaseOrderTest, TheSameBuildWithVersion110IsNewerThan19)
{
    EXPECT_TRUE(isNewer(u"1.10"_s, u"121"_s, u"1.9"_s, u"121"_s));
    EXPECT_FALSE(isNewer(u"1.9"_s, u"121"_s, u"1.10"_s, u"121"_s));
}

TEST(ReleaseOrderTest, Build120IsNotNewerThan121WhateverItsVersion)
{
    EXPECT_FALSE(isNewer(u"9.0"_s, u"120"_s, u"1.4"_s, u"121"_s));
}

TEST(ReleaseOrderTest, AHigherBuildIsNewerWhateverItsVersion)
{
    EXPECT_TRUE(isNewer(u"1.0"_s, u"122"_s, u"1.4"_s, u"121"_s));
    EXPECT_TRUE(isNewer(u"1.0"_s, u"1000"_s, u"1.4"_s, u"999"_s));
}

TEST(ReleaseOrderTest, ForADevelopmentRunEveryBuildAboveZeroIsNewer)
{
    EXPECT_TRUE(isNewer(u"0.1"_s, u"1"_s, u"dev"_s, u"0"_s));
    EXPECT_FALSE(isNewer(u"0.1"_s, u"0"_s, u"dev"_s, u"0"_s));
}

TEST(ReleaseOrderTest, BuildsAreNumbersWithAnOptionalSign)
{
    EXPECT_FALSE(isNewer(u"9"_s, u"-1"_s, u"1"_s, u"0"_s));
    EXPECT_TRUE(isNewer(u"1"_s, u"+2"_s, u"9"_s, u"1"_s));
    EXPECT_TRUE(isNewer(u"9"_s, u"0121"_s, u"1"_s, u"121"_s)) << "equal builds, so versions decide";
}

TEST(ReleaseOrderTest, ABuildThatIsNoNumberLeavesTheDecisionToTheVersions)
{
    EXPECT_TRUE(isNewer(u"1.5"_s, u"12a"_s, u"1.4"_s, u"121"_s));
    EXPECT_FALSE(isNewer(u"1.4"_s, u"12a"_s, u"1.4"_s, u"11"_s));
    EXPECT_TRUE(isNewer(u"1.5"_s, u"1"_s, u"1.4"_s, u"12a"_s));
    EXPECT_TRUE(isNewer(u"1.5"_s, u" 1"_s, u"1.4"_s, u"2"_s));
    EXPECT_TRUE(isNewer(u"1.5"_s, u"99999999999999999999"_s, u"1.4"_s, u"2"_s));
}

TEST(ReleaseOrderTest, RunsOfDigitsCompareAsNumbers)
{
    const auto order = [](QStringView a, QStringView b) {
        return sign(ReleaseOrder::numericCompare(a, b));
    };
    EXPECT_EQ(order(u"1.10", u"1.9"), 1);
    EXPECT_EQ(order(u"1.2", u"1.2.0"), -1);
    EXPECT_EQ(order(u"1.02", u"1.2"), 0);
    EXPECT_EQ(order(u"2a", u"2b"), -1);
    EXPECT_EQ(order(u"a2", u"a10"), -1);
    EXPECT_EQ(order(u"99999999999999999999", u"100000000000000000000"), -1);
    EXPECT_EQ(order(u"dev", u"1.0"), 1);
    EXPECT_EQ(order(u"", u""), 0);
    EXPECT_EQ(order(u"", u"0"), -1);
}

TEST(ReleaseOrderTest, OfAMinimumOnlyTheFirstTwoNumbersCount)
{
    using Version = ReleaseOrder::SystemVersion;
    const auto version = [](const QString &text) { return ReleaseOrder::systemVersion(text); };
    EXPECT_EQ(version(u"14.2.1"_s), (Version{14, 2}));
    EXPECT_EQ(version(u"14"_s), (Version{14, 0}));
    EXPECT_EQ(version(u"..14..2"_s), (Version{14, 2}));
    EXPECT_EQ(version(u"v.14.x.3"_s), (Version{14, 3}));
}

TEST(ReleaseOrderTest, AMinimumOfDotsOrLettersIsZero)
{
    using Version = ReleaseOrder::SystemVersion;
    for (const QString &text : {u"..."_s, u"abc"_s, u"a.b"_s, u""_s, u"14a"_s})
        EXPECT_EQ(ReleaseOrder::systemVersion(text), Version());
}

} // namespace
