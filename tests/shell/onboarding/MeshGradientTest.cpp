#include "shell/onboarding/MeshGradient.h"

#include <QColor>

#include <cmath>
#include <gtest/gtest.h>

namespace {

/// The greatest difference in any colour channel.
int difference(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b))});
}

QRgb rgb(double red, double green, double blue)
{
    return qRgb(int(std::lround(255 * red)), int(std::lround(255 * green)),
                int(std::lround(255 * blue)));
}

TEST(MeshGradientTest, theCornersBearTheirColoursAtAnyTime)
{
    for (const double time : {0.0, 10.0, 813456789.0}) {
        EXPECT_EQ(MeshGradient::colorAt({0, 0}, time), rgb(0.11, 0.10, 0.26));
        EXPECT_EQ(MeshGradient::colorAt({1, 0}, time), rgb(0.10, 0.12, 0.30));
        EXPECT_EQ(MeshGradient::colorAt({0, 1}, time), rgb(0.12, 0.10, 0.28));
        EXPECT_EQ(MeshGradient::colorAt({1, 1}, time), rgb(0.08, 0.10, 0.22));
    }
}

TEST(MeshGradientTest, theMiddleBearsItsColourWhereverItHasDrifted)
{
    for (const double time : {0.0, 3.5, 10.0, 813456789.25}) {
        const QPointF middle = MeshGradient::points(time)[4];
        EXPECT_LE(difference(MeshGradient::colorAt(middle, time), rgb(0.42, 0.45, 0.95)), 1);
    }
}

TEST(MeshGradientTest, onlyTheMiddleAndTheBottomDriftAndNotFar)
{
    const auto start = MeshGradient::points(0);
    for (double time = 0; time < 60; time += 0.25) {
        const auto points = MeshGradient::points(time);
        for (const std::size_t fixed : {0, 1, 2, 3, 5, 6, 8})
            EXPECT_EQ(points[fixed], start[fixed]);
        EXPECT_LE(std::abs(points[4].x() - 0.5), 0.18);
        EXPECT_LE(std::abs(points[4].y() - 0.5), 0.14);
        EXPECT_LE(std::abs(points[7].x() - 0.5), 0.12);
        EXPECT_EQ(points[7].y(), 1);
    }
}

TEST(MeshGradientTest, theDriftIsSlowEvenManyYearsAfterTheReferenceDate)
{
    const double now = 813456789;
    const QPointF step = MeshGradient::points(now + 1.0 / 30)[4] - MeshGradient::points(now)[4];
    const double length = std::hypot(step.x(), step.y());

    EXPECT_GT(length, 0);
    EXPECT_LT(length, 0.004);
}

TEST(MeshGradientTest, atTenSecondsItLooksAsItWasDrawn)
{
    struct Sample
    {
        QPointF place;
        QRgb color;
    };
    for (const auto &[place, color] : {
             Sample{{(100 + 0.5) / 2640, (100 + 0.5) / 1680}, qRgb(30, 27, 72)},
             Sample{{(400 + 0.5) / 2640, (700 + 0.5) / 1680}, qRgb(88, 80, 203)},
             Sample{{(2300 + 0.5) / 2640, (800 + 0.5) / 1680}, qRgb(52, 80, 173)},
             Sample{{(1320 + 0.5) / 2640, (1600 + 0.5) / 1680}, qRgb(89, 49, 149)},
             Sample{{(2500 + 0.5) / 2640, (1500 + 0.5) / 1680}, qRgb(25, 32, 70)},
             Sample{{(1320 + 0.5) / 2640, (60 + 0.5) / 1680}, qRgb(52, 47, 135)},
             Sample{{(60 + 0.5) / 2640, (1500 + 0.5) / 1680}, qRgb(36, 29, 84)},
         }) {
        EXPECT_LE(difference(MeshGradient::colorAt(place, 10), color), 3)
            << place.x() << ", " << place.y();
    }
}

TEST(MeshGradientTest, anImageIsTheFieldPixelByPixel)
{
    const QImage image = MeshGradient::image({96, 64}, 10);

    EXPECT_EQ(image.size(), QSize(96, 64));
    for (const QPoint pixel : {QPoint(0, 0), QPoint(47, 31), QPoint(95, 63), QPoint(10, 50)})
        EXPECT_EQ(image.pixel(pixel),
                  MeshGradient::colorAt({(pixel.x() + 0.5) / 96, (pixel.y() + 0.5) / 64}, 10));
}

TEST(MeshGradientTest, neighboursDifferLittleAtAnyTime)
{
    for (double time = 0; time < 40; time += 1.7) {
        const QImage image = MeshGradient::image({96, 64}, time);
        for (int y = 1; y < 64; ++y) {
            for (int x = 1; x < 96; ++x) {
                ASSERT_LE(difference(image.pixel(x, y), image.pixel(x - 1, y)), 12);
                ASSERT_LE(difference(image.pixel(x, y), image.pixel(x, y - 1)), 12);
            }
        }
    }
}

} // namespace
