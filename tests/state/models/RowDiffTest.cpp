#include "state/models/RowDiff.h"

#include <QList>
#include <QString>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A list of keys, one for each character.
std::vector<QStringView> keys(const QString &text)
{
    std::vector<QStringView> keys;
    keys.reserve(static_cast<std::size_t>(text.size()));
    for (qsizetype at = 0; at < text.size(); ++at)
        keys.push_back(QStringView(text).sliced(at, 1));
    return keys;
}

RowDiff diff(const QString &before, const QString &after)
{
    return rowDiff(keys(before), keys(after));
}

} // namespace

TEST(RowDiff, EqualListsDoNotDiffer)
{
    EXPECT_EQ(diff(u"abc"_s, u"abc"_s), RowDiff());
    EXPECT_EQ(diff(u""_s, u""_s), RowDiff());
}

TEST(RowDiff, NeighboursGoTogetherFromTheBottomUp)
{
    EXPECT_EQ(diff(u"abcdef"_s, u"be"_s), (RowDiff{.removals = {{5, 1}, {2, 2}, {0, 1}}}));
}

TEST(RowDiff, NeighboursComeTogetherFromTheTopDown)
{
    EXPECT_EQ(diff(u"be"_s, u"abcdef"_s), (RowDiff{.insertions = {{0, 1}, {2, 2}, {5, 1}}}));
}

TEST(RowDiff, ARowThatChangesPlaceIsOneMoveUpwardsOrDownwards)
{
    EXPECT_EQ(diff(u"abcdef"_s, u"bcdeaf"_s), (RowDiff{.moves = {{0, 1, 4}}}));
    EXPECT_EQ(diff(u"abcdef"_s, u"aebcdf"_s), (RowDiff{.moves = {{4, 1, 1}}}));
}

TEST(RowDiff, RowsThatChangePlaceTogetherAreOneMove)
{
    EXPECT_EQ(diff(u"abcdefgh"_s, u"cdefgabh"_s), (RowDiff{.moves = {{0, 2, 5}}}));
}

TEST(RowDiff, AnUnrelatedListReplacesAllRowsInTwoSteps)
{
    EXPECT_EQ(diff(u"abc"_s, u"xyzw"_s), (RowDiff{.removals = {{0, 3}}, .insertions = {{0, 4}}}));
}

TEST(RowDiff, ARowInTheMidstOfOthersIsReplaced)
{
    EXPECT_EQ(diff(u"abcdef"_s, u"abxdef"_s),
              (RowDiff{.removals = {{2, 1}}, .insertions = {{2, 1}}}));
}

TEST(RowDiff, RowsThatGoComeAndChangePlaceAreFoundTogether)
{
    EXPECT_EQ(diff(u"abcdefgh"_s, u"acxdefbh"_s),
              (RowDiff{.removals = {{6, 1}}, .moves = {{1, 1, 5}}, .insertions = {{2, 1}}}));
}
