#include "screens/issues/list/RowFit.h"

#include "screens/issues/list/RowColumns.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A row with two label chips of width 130 in total (27 as dots) and a due badge of width 79 (36 as an icon).
RowFit fitIn(double room)
{
    return RowFitting::fit(room, 130, 27, 79, 36);
}

SharedIssue withKey(const QString &key)
{
    Issue issue;
    issue.key = key;
    issue.projectKey = key.section(u'-', 0, 0);
    return issue;
}

int columnOf(const QStringList &keys)
{
    IssueList issues;
    for (const auto &key : keys)
        issues += withKey(key);
    return keyColumnWidth(KeyShapes(issues),
                          [](const QString &key) { return qreal(key.size()) * 7.5; });
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

TEST(KeyColumnWidth, TwoScreensWithDifferentKeyLengthsGiveDifferentColumns)
{
    EXPECT_LT(columnOf({u"MOB-1"_s, u"MOB-12"_s}), columnOf({u"MOB-1"_s, u"MOB-1234"_s}));
    EXPECT_EQ(columnOf({u"MOB-12"_s}), 45 + 4);
}

TEST(KeyColumnWidth, AnEmptyListGives36)
{
    EXPECT_EQ(columnOf({}), 36);
}

TEST(KeyColumnWidth, ALongProjectKeyDoesNotEatTheRow)
{
    EXPECT_EQ(columnOf({u"UNPROJETAUNOMTRESLONG-123456"_s}), 150);
}
