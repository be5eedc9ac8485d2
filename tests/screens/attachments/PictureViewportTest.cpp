#include "screens/attachments/preview/PictureCanvas.h"

#include <gtest/gtest.h>

namespace {

const QSizeF Picture(2000, 1000);
const QSizeF View(500, 500);

/// The point of the picture that is drawn at a point of the view.
QPointF pointAt(const PictureViewport &viewport, QPointF at)
{
    return viewport.centre + (at - QPointF(250, 250)) / viewport.zoom;
}

} // namespace

TEST(PictureViewport, ALargePictureIsFittedAndASmallOneIsNotEnlarged)
{
    EXPECT_DOUBLE_EQ(fittingZoom(Picture, View), 0.25);
    EXPECT_DOUBLE_EQ(fittingZoom({100, 100}, View), 1);
    EXPECT_DOUBLE_EQ(fittingZoom({}, View), 1);
}

TEST(PictureViewport, ThePointUnderThePointerStaysWhereItIs)
{
    const PictureViewport first = zoomed({}, 8, {250, 250}, Picture, View);
    const QPointF at(300, 180);
    const QPointF before = pointAt(first, at);
    const PictureViewport second = zoomed(first, 1.5, at, Picture, View);
    EXPECT_DOUBLE_EQ(second.zoom, 3);
    EXPECT_NEAR(pointAt(second, at).x(), before.x(), 0.001);
    EXPECT_NEAR(pointAt(second, at).y(), before.y(), 0.001);
}

TEST(PictureViewport, ZoomingOutFitsThePictureAgain)
{
    const PictureViewport near = zoomed({}, 8, {10, 10}, Picture, View);
    EXPECT_EQ(zoomed(near, 0.01, {400, 400}, Picture, View), PictureViewport());
}

TEST(PictureViewport, TheZoomHasALimit)
{
    EXPECT_DOUBLE_EQ(zoomed({}, 1e9, {250, 250}, Picture, View).zoom, 16);
}

TEST(PictureViewport, APictureCannotBeMovedOutOfTheView)
{
    const PictureViewport near = zoomed({}, 4, {250, 250}, Picture, View);
    ASSERT_DOUBLE_EQ(near.zoom, 1);
    EXPECT_EQ(panned(near, {100, 50}, Picture, View).centre, QPointF(900, 450));
    EXPECT_EQ(panned(near, {1e6, -1e6}, Picture, View).centre, QPointF(250, 750));
    EXPECT_EQ(panned({}, {100, 50}, Picture, View), PictureViewport()) << "nothing to move";
}
