#include "shell/settings/ThemePicture.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace {

class ThemePictureTest : public testing::Test
{
protected:
    void paint(Model::AppearanceMode mode)
    {
        ThemePicture picture;
        picture.setProperty("mode", QVariant::fromValue(mode));
        picture.setProperty("accent", QColor(Qt::magenta));
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.scale(2, 2);
        picture.paint(&painter);
    }
    int greyAt(int x, int y) const { return image.pixelColor(2 * x, 2 * y).red(); }

    QImage image{QSize(184, 120), QImage::Format_ARGB32_Premultiplied};
};

TEST_F(ThemePictureTest, TheLightWindowHasALightBodyAndADarkerSidebar)
{
    paint(Model::AppearanceMode::Light);
    EXPECT_NEAR(greyAt(70, 55), 0.97 * 255, 1);
    EXPECT_NEAR(greyAt(20, 55), 0.9 * 255, 1);
}

TEST_F(ThemePictureTest, TheDarkWindowHasADarkBodyAndALighterSidebar)
{
    paint(Model::AppearanceMode::Dark);
    EXPECT_NEAR(greyAt(70, 55), 0.13 * 255, 1);
    EXPECT_NEAR(greyAt(20, 55), 0.2 * 255, 1);
}

TEST_F(ThemePictureTest, TheOneOfTheSystemShowsBoth)
{
    paint(Model::AppearanceMode::System);
    EXPECT_NEAR(greyAt(20, 40), 0.9 * 255, 1);
    EXPECT_NEAR(greyAt(86, 30), 0.13 * 255, 1);
    EXPECT_NEAR(greyAt(42, 55), 0.2 * 255, 1);
}

TEST_F(ThemePictureTest, ItsCornersAreRoundAndItsChosenLineHasTheAccent)
{
    paint(Model::AppearanceMode::Light);
    EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
    EXPECT_EQ(image.pixelColor(183, 119).alpha(), 0);
    EXPECT_EQ(image.pixelColor(2 * 20, 2 * 19), QColor(Qt::magenta));
}

} // namespace
