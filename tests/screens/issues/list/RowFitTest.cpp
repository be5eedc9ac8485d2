#include "screens/issues/list/RowFit.h"

#include <gtest/gtest.h>

namespace {

/// A row with two label chips of width 130 in total (27 as dots) and a due badge of width 79 (36 as an icon).
RowFit fitIn(double room)
{
    return RowFitting::fit(room, 130, 27, 79, 36);
}

} // namespace

TEST(RowFit, WithRoomNamesAndTextAreShown)
{
    EXPECT_EQ(fitIn(170 + 130 + 79), (RowFit{true, true}));
}

TEST(RowFit, TheLabelNamesGiveWayBeforeTheDueText)
{
    EXPECT_EQ(fitIn(170 + 130 + 79 - 1), (RowFit{false, true}));
    EXPECT_EQ(fitIn(170 + 27 + 79), (RowFit{false, true}));
}

TEST(RowFit, TheDueTextGivesWayBeforeTheSummaryIsCutBelow170)
{
    EXPECT_EQ(fitIn(170 + 27 + 79 - 1), (RowFit{false, false}));
}

TEST(RowFit, AnIssueWithoutLabelsAndDueDateHasNothingToGive)
{
    EXPECT_EQ(RowFitting::fit(100, 0, 0, 0, 0).showsDueText, true);
}
