#include "screens/Bench.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Hairline, IsOneDevicePixelHigh)
{
    Bench bench;
    auto *line = bench.show(u"Hairline { y: 20; width: 100; color: 'black' }"_s);
    ASSERT_NE(line, nullptr) << bench.warnings();
    const QImage picture = bench.window().grabWindow();
    const int scale = qRound(bench.window().effectiveDevicePixelRatio());
    EXPECT_DOUBLE_EQ(line->implicitHeight(), 1.0 / scale);
    for (int y = 15 * scale; y < 25 * scale; ++y)
        EXPECT_EQ(picture.pixelColor(50 * scale, y) == QColor(Qt::black), y == 20 * scale) << y;
    EXPECT_EQ(bench.warnings(), "");
}

TEST(Hairline, FollowsItsColourAndItsWidth)
{
    Bench bench;
    auto *line = bench.show(u"Hairline { y: 20; width: 100; color: 'black' }"_s);
    bench.window().grabWindow();
    line->setProperty("color", QColor(Qt::red));
    line->setWidth(200);
    const QImage picture = bench.window().grabWindow();
    const int scale = qRound(bench.window().effectiveDevicePixelRatio());
    EXPECT_EQ(picture.pixelColor(150 * scale, 20 * scale), QColor(Qt::red));
}
