#include "screens/issues/list/RowPlan.h"

#include "screens/issues/face/TextMeasure.h"
#include "screens/issues/list/RowFit.h"
#include "screens/issues/list/RowStyle.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr double width = 1056;

RowContents contents()
{
    RowContents row;
    row.keyWidth = 60;
    return row;
}

} // namespace

TEST(RowPlan, ColumnsStandSideBySideWithGapsOfTen)
{
    const auto plan = rowPlan(contents(), width);

    EXPECT_EQ(plan.check, 12);
    EXPECT_EQ(plan.priority, 36);
    EXPECT_EQ(plan.key, 68);
    EXPECT_EQ(plan.status, 138);
    EXPECT_EQ(plan.type, RowPlan::absent);
    EXPECT_EQ(plan.summary, 170);
    EXPECT_EQ(plan.updated, width - 12 - 54);
    EXPECT_EQ(plan.assignee, width - 12 - 54 - 10 - 22);
    EXPECT_EQ(plan.summaryWidth, plan.assignee - 10 - plan.summary);
}

TEST(RowPlan, AColumnThatIsNotShownLeavesNoGap)
{
    auto row = contents();
    row.display = {
        .key = false, .priority = false, .type = true, .assignee = false, .updated = false};
    const auto plan = rowPlan(row, width);

    EXPECT_EQ(plan.priority, RowPlan::absent);
    EXPECT_EQ(plan.key, RowPlan::absent);
    EXPECT_EQ(plan.status, 36);
    EXPECT_EQ(plan.type, 68);
    EXPECT_EQ(plan.summary, 92);
    EXPECT_EQ(plan.assignee, RowPlan::absent);
    EXPECT_EQ(plan.updated, RowPlan::absent);
    EXPECT_EQ(plan.summaryWidth, width - 12 - 10 - plan.summary);
}

TEST(RowPlan, TheLastColumnHasTheWidthThatTheWholeListShares)
{
    auto row = contents();
    row.updatedWidth = 132;
    const auto plan = rowPlan(row, width);

    EXPECT_EQ(plan.updated, width - 12 - 132);
    EXPECT_EQ(plan.updatedWidth, 132);
    EXPECT_EQ(plan.assignee, plan.updated - 10 - 22);
}

TEST(RowPlan, LabelsAndDueDateStandBetweenSummaryAndAssignee)
{
    auto row = contents();
    row.labels = {u"web"_s, u"ios"_s};
    row.dueText = u"Demain"_s;
    const auto plan = rowPlan(row, width);

    EXPECT_EQ(plan.due + plan.dueWidth + 10, plan.assignee);
    EXPECT_EQ(plan.labels + RowFitting::labelsWidth(row.labels) + 10, plan.due);
    EXPECT_EQ(plan.summary + plan.summaryWidth + 10, plan.labels);
}

TEST(RowPlan, ANarrowRowDropsTheLabelNamesThenTheDueTextBeforeTheSummaryIsCutBelow170)
{
    auto row = contents();
    row.labels = {u"authentification"_s, u"ios"_s, u"a"_s, u"b"_s, u"c"_s};
    row.dueText = u"24 déc."_s;
    const double beside = 170 + 10 + 22 + 10 + 54 + 12;
    const double full = beside + 170 + 10 + RowFitting::labelsWidth(row.labels) + 10 +
                        RowFitting::dueWidth(row.dueText);

    const auto wide = rowPlan(row, full);
    EXPECT_TRUE(wide.showsLabelNames);
    EXPECT_TRUE(wide.showsDueText);
    EXPECT_EQ(wide.summaryWidth, 170);

    const auto narrower = rowPlan(row, full - 1);
    EXPECT_FALSE(narrower.showsLabelNames);
    EXPECT_TRUE(narrower.showsDueText);

    const double dots = 4 * 7 + 3 * 3;
    const double withDots = full - RowFitting::labelsWidth(row.labels) + dots;
    EXPECT_TRUE(rowPlan(row, withDots).showsDueText);
    EXPECT_EQ(rowPlan(row, withDots).summaryWidth, 170);
    const auto narrowest = rowPlan(row, withDots - 1);
    EXPECT_FALSE(narrowest.showsDueText);
    EXPECT_GE(narrowest.summaryWidth, 170);
}

TEST(RowPlan, TheParentFollowsTheSummaryIfBothFit)
{
    auto row = contents();
    row.summary = u"Connexion avec Apple"_s;
    EXPECT_EQ(rowPlan(row, width).parent, RowPlan::absent);

    row.parentSummary = u"Refonte de la page"_s;
    const auto wide = rowPlan(row, width);
    const double title = std::ceil(TextMeasure::width(row.summary, RowStyle::titleFont()));
    EXPECT_EQ(wide.parent, wide.summary + title + 6);

    const double parent = wide.parent - wide.summary + RowPlan::parentText() +
                          TextMeasure::width(row.parentSummary, RowStyle::parentFont());
    EXPECT_NE(rowPlan(row, width - std::floor(wide.summaryWidth - parent)).parent, RowPlan::absent);
    EXPECT_EQ(rowPlan(row, width - std::ceil(wide.summaryWidth - parent)).parent, RowPlan::absent);
}
