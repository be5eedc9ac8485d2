#include "shell/MainPlan.h"

#include <gtest/gtest.h>

namespace {

MainPlan planOf(int window, bool hasInspector, int sidebar = 240, int inspector = 500)
{
    return mainPlan({window, sidebar, inspector, hasInspector});
}

int detail(int window, const MainPlan &plan)
{
    return window - plan.inspector - (plan.hasSidebar ? plan.sidebar : 0);
}

} // namespace

TEST(MainPlan, WithRoomEveryPaneHasItsWidth)
{
    const auto plan = planOf(1320, true);

    EXPECT_TRUE(plan.hasSidebar);
    EXPECT_EQ(plan.sidebar, 240);
    EXPECT_FALSE(plan.coversDetail);
    EXPECT_EQ(planOf(1320, false).inspector, 0);
    EXPECT_EQ(planOf(2560, true).inspector, 500);
}

TEST(MainPlan, WidthsOutsideTheBoundsAreBroughtBack)
{
    EXPECT_EQ(planOf(2560, true, 100, 100).sidebar, 210);
    EXPECT_EQ(planOf(2560, true, 100, 100).inspector, 380);
    EXPECT_EQ(planOf(2560, true, 900, 900).sidebar, 320);
    EXPECT_EQ(planOf(2560, true, 900, 900).inspector, 780);
}

TEST(MainPlan, TheInspectorShrinksBeforeTheSidebar)
{
    const auto plan = planOf(1200, true);

    EXPECT_EQ(plan.sidebar, 240);
    EXPECT_EQ(plan.inspector, 1200 - 240 - 532);
    EXPECT_EQ(planOf(1130, true).inspector, 380);
    EXPECT_EQ(planOf(1130, true).sidebar, 1130 - 380 - 532);
}

TEST(MainPlan, Below1122TheSidebarHidesWhileTheInspectorIsOpen)
{
    EXPECT_TRUE(planOf(1122, true).hasSidebar);
    EXPECT_FALSE(planOf(1121, true).hasSidebar);
    EXPECT_TRUE(planOf(1121, false).hasSidebar);
}

TEST(MainPlan, HalfOfASmallScreenHasNoSidebarAndTheInspectorTakesTheListsPlace)
{
    EXPECT_FALSE(planOf(640, false).hasSidebar);
    const auto plan = planOf(640, true);
    EXPECT_TRUE(plan.coversDetail);
    EXPECT_EQ(plan.inspector, 640);
    EXPECT_FALSE(planOf(940, true).coversDetail);
}

TEST(MainPlan, NoWidthLeavesTheListLessThanARowUnlessNothingElseIsLeftToGive)
{
    for (int window = 300; window <= 3000; window += 7) {
        for (const bool hasInspector : {false, true}) {
            const auto plan = planOf(window, hasInspector);
            ASSERT_LE(plan.inspector, window) << window;
            if (plan.hasSidebar)
                EXPECT_GE(detail(window, plan), 532) << window;
            else if (hasInspector && !plan.coversDetail)
                EXPECT_GE(detail(window, plan), 350) << window;
        }
    }
}
