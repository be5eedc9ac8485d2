#include "screens/Bench.h"
#include "screens/kit/FlowLayout.h"
#include "screens/kit/overlays/PopoverPlacement.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr FlowSpacing spacing{8, 6};
constexpr QSizeF window(600, 400);

QPointF placed(const QRectF &anchor, const QSizeF &size,
               PopoverPlacement::Alignment alignment = PopoverPlacement::Leading)
{
    return PopoverPlacement::beside(anchor, size, window, alignment);
}

} // namespace

TEST(FlowPlan, ChildrenThatFitStandOnOneLine)
{
    EXPECT_EQ(flowPlan({{30, 10}, {40, 20}}, 78, spacing), (FlowPlan{{{0, 0}, {38, 0}}, {78, 20}}));
}

TEST(FlowPlan, AChildThatDoesNotFitBeginsTheNextLine)
{
    EXPECT_EQ(flowPlan({{30, 10}, {40, 20}, {10, 5}}, 77, spacing),
              (FlowPlan{{{0, 0}, {0, 16}, {48, 16}}, {58, 36}}));
}

TEST(FlowPlan, AChildWiderThanTheWidthStaysFirstInItsLineAndTheSizeIsCutToTheWidth)
{
    EXPECT_EQ(flowPlan({{200, 10}, {40, 20}}, 100, spacing),
              (FlowPlan{{{0, 0}, {0, 16}}, {100, 36}}));
    EXPECT_EQ(flowPlan({{40, 20}, {200, 10}}, 100, spacing),
              (FlowPlan{{{0, 0}, {0, 26}}, {100, 36}}));
}

TEST(FlowPlan, WithoutAWidthAllStandOnOneLine)
{
    EXPECT_EQ(flowPlan({{300, 10}, {300, 20}, {300, 5}}, qInf(), spacing).size, QSizeF(916, 20));
}

TEST(FlowPlan, NoChildrenTakeNoRoom)
{
    EXPECT_EQ(flowPlan({}, 100, spacing).size, QSizeF(0, 0));
}

TEST(FlowLayout, ItsHeightFollowsItsWidthItsChildrenAndWhatIsShown)
{
    Bench bench;
    auto *flow =
        bench.show(u"FlowLayout { width: 100; spacing: 8; lineSpacing: 6; "
                   "property bool third: true; "
                   "Item { implicitWidth: 40; implicitHeight: 20 } "
                   "Repeater { model: 1; Item { implicitWidth: 40; implicitHeight: 20 } } "
                   "Item { implicitWidth: 40; implicitHeight: 20; visible: parent.third } }"_s);
    ASSERT_NE(flow, nullptr) << bench.warnings();
    EXPECT_DOUBLE_EQ(flow->implicitHeight(), 46);
    EXPECT_DOUBLE_EQ(flow->implicitWidth(), 136);
    flow->setWidth(50);
    EXPECT_DOUBLE_EQ(flow->implicitHeight(), 72);
    flow->setProperty("third", false);
    EXPECT_DOUBLE_EQ(flow->implicitHeight(), 46);
    bench.window().grabWindow();
    EXPECT_EQ(flow->childItems().at(0)->position(), QPointF(0, 0));
    EXPECT_TRUE(QTest::qWaitFor([&] {
        for (const auto *child : flow->childItems()) {
            if (child->position() == QPointF(0, 26))
                return true;
        }
        return false;
    }));
    EXPECT_EQ(bench.warnings(), "");
}

TEST(PopoverPlacement, StandsBelowItsAnchorWithAGap)
{
    EXPECT_EQ(placed({100, 100, 50, 20}, {200, 150}), QPointF(100, 124));
}

TEST(PopoverPlacement, StandsAboveItWhereThereIsMoreRoom)
{
    EXPECT_EQ(placed({100, 300, 50, 20}, {200, 150}), QPointF(100, 146));
}

TEST(PopoverPlacement, StaysBelowWhereNeitherSideHasRoomAndBelowThereIsMore)
{
    EXPECT_EQ(placed({100, 100, 50, 20}, {200, 350}), QPointF(100, 42));
}

TEST(PopoverPlacement, IsInLineWithTheEdgeThatIsAskedFor)
{
    const QRectF anchor(300, 100, 50, 20);
    EXPECT_EQ(placed(anchor, {200, 50}, PopoverPlacement::Trailing).x(), 150);
    EXPECT_EQ(placed(anchor, {200, 50}, PopoverPlacement::Centre).x(), 225);
}

TEST(PopoverPlacement, KeepsEightFromTheWindowsEdges)
{
    EXPECT_EQ(placed({580, 100, 50, 20}, {200, 50}).x(), 600 - 8 - 200);
    EXPECT_EQ(placed({2, 100, 50, 20}, {200, 50}).x(), 8);
}

TEST(PopoverPlacement, BeginsInTheWindowEvenWhenItIsTooLargeForIt)
{
    EXPECT_EQ(placed({100, 100, 50, 20}, {900, 700}), QPointF(8, 8));
}
