#include "screens/palette/RowGeometry.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr RowHeights heights{.row = 32, .title = 29, .above = 4, .below = 8};

/// Rows in two sections, which begin at the first row and at the third.
QList<PaletteRow> rows(int count)
{
    QList<PaletteRow> list(count);
    for (const int titled : {0, 2}) {
        if (titled < count)
            list[titled].sectionTitle = u"Section"_s;
    }
    return list;
}

} // namespace

TEST(RowGeometry, TitlesAndMarginsCount)
{
    const RowGeometry geometry(heights, rows(4));
    EXPECT_EQ(geometry.top(0), 4);
    EXPECT_EQ(geometry.bottom(0), 4 + 29 + 32);
    EXPECT_EQ(geometry.top(2), geometry.bottom(1));
    EXPECT_EQ(geometry.bottom(3), 4 + 2 * 29 + 4 * 32);
    EXPECT_EQ(geometry.height(), 4 + 2 * 29 + 4 * 32 + 8);
}

TEST(RowGeometry, WithoutRowsOnlyTheMarginsAreLeft)
{
    const RowGeometry geometry(heights, {});
    EXPECT_EQ(geometry.height(), 12);
    EXPECT_EQ(geometry.between(0, 420), (RowRange{0, 0}));
    EXPECT_EQ(geometry.topShowing(0, 0, 420), 0);
}

TEST(RowGeometry, ARowThatIsSeenInPartIsAmongThoseSeen)
{
    const RowGeometry geometry(heights, rows(100));
    EXPECT_EQ(geometry.between(0, 65), (RowRange{0, 1}));
    EXPECT_EQ(geometry.between(0, 66), (RowRange{0, 2}));
    EXPECT_EQ(geometry.between(64, 98), (RowRange{0, 3}));
    EXPECT_EQ(geometry.between(65, 97), (RowRange{1, 1}));
    EXPECT_EQ(geometry.between(1e6, 2e6).count, 0);
}

TEST(RowGeometry, ScrollsNoFurtherThanNeededToShowARow)
{
    const RowGeometry geometry(heights, rows(100));
    const qreal view = 420;
    EXPECT_EQ(geometry.topShowing(5, 0, view), 0) << "it is in sight";
    EXPECT_EQ(geometry.topShowing(50, 0, view), geometry.bottom(50) - view);
    EXPECT_EQ(geometry.topShowing(5, 1000, view), geometry.top(5));
}

TEST(RowGeometry, ARowIsShownClearOfTheFade)
{
    RowHeights faded = heights;
    faded.fade = 60;
    const RowGeometry geometry(faded, rows(100));
    EXPECT_EQ(geometry.topShowing(50, 0, 420), geometry.bottom(50) + 60 - 420);
    EXPECT_EQ(geometry.topShowing(98, 0, 420), geometry.height() - 420) << "the end has no fade";
}

TEST(RowGeometry, TheFirstAndTheLastRowShowTheVeryEnds)
{
    const RowGeometry geometry(heights, rows(100));
    EXPECT_EQ(geometry.topShowing(0, 1000, 420), 0);
    EXPECT_EQ(geometry.topShowing(99, 0, 420), geometry.height() - 420);
}

TEST(RowGeometry, ARowThatThereIsNotLeavesTheViewWithinWhatScrolls)
{
    const RowGeometry geometry(heights, rows(3));
    EXPECT_EQ(geometry.topShowing(7, 1000, 100), geometry.height() - 100);
    EXPECT_EQ(geometry.topShowing(-1, 20, 100), 20);
    EXPECT_EQ(geometry.bounded(50, 420), 0);
}
