#include "screens/issues/board/BoardDrops.h"

#include "screens/issues/board/BoardScroll.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(MovedKeys, AnUncheckedKeyMovesAlone)
{
    EXPECT_EQ(movedKeys({u"A-1"_s}, {u"A-2"_s, u"A-3"_s}), QStringList{u"A-1"_s});
}

TEST(MovedKeys, ACheckedKeyTakesAllCheckedOnesAlong)
{
    EXPECT_EQ(movedKeys({u"A-2"_s}, {u"A-3"_s, u"A-2"_s}), (QStringList{u"A-2"_s, u"A-3"_s}));
}

TEST(MovedKeys, SeveralCheckedKeysRepeatTheSet)
{
    EXPECT_EQ(movedKeys({u"A-1"_s, u"A-2"_s, u"A-3"_s}, {u"A-1"_s, u"A-2"_s}),
              (QStringList{u"A-1"_s, u"A-2"_s, u"A-1"_s, u"A-2"_s, u"A-3"_s}));
}

TEST(DroppedKeys, EachLineIsAKey)
{
    EXPECT_EQ(droppedKeys(u"A-1\r\n A-2 \n\n"_s), (QStringList{u"A-1"_s, u"A-2"_s}));
    EXPECT_TRUE(droppedKeys({}).isEmpty());
}

TEST(ColumnAt, EachHalfOfAGapBelongsToTheColumnBesideIt)
{
    EXPECT_EQ(columnAt(0, 296, 12, 3), 0);
    EXPECT_EQ(columnAt(296, 296, 12, 3), 0);
    EXPECT_EQ(columnAt(301, 296, 12, 3), 0);
    EXPECT_EQ(columnAt(302, 296, 12, 3), 1);
    EXPECT_EQ(columnAt(308, 296, 12, 3), 1);
}

TEST(ColumnAt, BesideTheColumnsThereIsNone)
{
    EXPECT_EQ(columnAt(-6, 296, 12, 3), 0);
    EXPECT_EQ(columnAt(-7, 296, 12, 3), -1);
    EXPECT_EQ(columnAt(2 * 308 + 296 + 5, 296, 12, 3), 2);
    EXPECT_EQ(columnAt(2 * 308 + 296 + 6, 296, 12, 3), -1);
    EXPECT_EQ(columnAt(10, 296, 12, 0), -1);
}

TEST(EdgeScrollStep, NothingScrollsInTheMiddle)
{
    EXPECT_EQ(edgeScrollStep(300, 600), 0);
    EXPECT_EQ(edgeScrollStep(56, 600), 0);
    EXPECT_EQ(edgeScrollStep(544, 600), 0);
}

TEST(EdgeScrollStep, TheNearerAnEdgeTheFasterTowardsIt)
{
    EXPECT_LT(edgeScrollStep(10, 600), edgeScrollStep(40, 600));
    EXPECT_LT(edgeScrollStep(40, 600), 0);
    EXPECT_GT(edgeScrollStep(590, 600), edgeScrollStep(560, 600));
    EXPECT_GT(edgeScrollStep(560, 600), 0);
    EXPECT_EQ(edgeScrollStep(-50, 600), edgeScrollStep(0, 600)) << "beyond the edge no faster";
}

TEST(EdgeScrollStep, AShortViewKeepsItsMiddle)
{
    EXPECT_EQ(edgeScrollStep(30, 60), 0);
    EXPECT_EQ(edgeScrollStep(0, 0), 0);
}
