#include "demo/DemoSources.h"

#include <QSet>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(DemoSources, drawsEveryIntegerUpToTheLargest)
{
    const DemoSources sources = DemoSources::system();
    QSet<int> drawn;
    // The probability that 20,000 draws miss one of the 141 values is below 1e-59.
    for (int draw = 0; draw < 20'000; ++draw)
        drawn.insert(sources.draw(140));
    EXPECT_EQ(drawn.size(), 141);
    EXPECT_TRUE(drawn.contains(0));
    EXPECT_TRUE(drawn.contains(140));
}

TEST(DemoSources, identifiersDiffer)
{
    const DemoSources sources = DemoSources::system();
    EXPECT_NE(sources.newID(), sources.newID());
    EXPECT_EQ(sources.newID().size(), 36);
}

TEST(DemoSources, filesLieInTheUsersCaches)
{
    EXPECT_TRUE(DemoSources::system().folder.endsWith(u"/Velmora/demo"_s));
}
