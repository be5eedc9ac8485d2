#include "demo/DemoSamples.h"

using namespace Qt::StringLiterals;

TEST(DemoSite, keyNumberIsTheLastPieceBetweenDashes)
{
    EXPECT_EQ(keyNumber(u"MOB-101"_s), 101);
    EXPECT_EQ(keyNumber(u"A-B-7"_s), 7);
    EXPECT_EQ(keyNumber(u"42"_s), 42);
}

TEST(DemoSite, keyNumberSkipsEmptyPieces)
{
    EXPECT_EQ(keyNumber(u"MOB-9-"_s), 9);
    EXPECT_EQ(keyNumber(u"MOB--9"_s), 9);
}

TEST(DemoSite, keyNumberOfAnythingElseIsZero)
{
    EXPECT_EQ(keyNumber(QString()), 0);
    EXPECT_EQ(keyNumber(u"-"_s), 0);
    EXPECT_EQ(keyNumber(u"MOB-"_s), 0);
    EXPECT_EQ(keyNumber(u"MOB-1a"_s), 0);
}

TEST(DemoSite, startsFromTheSeed)
{
    const DemoSeed::Seed seed = testSeed();
    const DemoSite site = DemoSite::from(seed);
    EXPECT_EQ(site.store.size(), seed.issues.size());
    EXPECT_EQ(site.sprint, seed.sprint);
    EXPECT_EQ(site.threads, seed.threads);
    EXPECT_EQ(site.history, seed.recentKeys);
    EXPECT_EQ(site.events, seed.events);
}

TEST(DemoSite, countersHoldTheHighestNumberOfEachProject)
{
    const DemoSite site = DemoSite::from(testSeed());
    const QHash<QString, qint64> expected{
        {u"MOB"_s, 114}, {u"WEB"_s, 215}, {u"DS"_s, 38}, {u"SUP"_s, 44}};
    EXPECT_EQ(site.counters, expected);
}

TEST(DemoSite, findsAnIssueByItsKey)
{
    const DemoSite site = siteOf({sampleIssue(u"T-1"_s)});
    ASSERT_NE(site.find(u"T-1"_s), nullptr);
    EXPECT_EQ(site.find(u"T-1"_s)->key, u"T-1"_s);
    EXPECT_EQ(site.find(u"T-2"_s), nullptr);
}

TEST(DemoSiteDeathTest, twoIssuesWithOneKeyStopTheProgram)
{
    EXPECT_DEATH(siteOf({sampleIssue(u"T-1"_s), sampleIssue(u"T-1"_s)}), "T-1");
}
