#include "screens/kit/painters/StatusPainter.h"

#include "screens/Pixels.h"
#include "screens/theme/IdentityColors.h"

#include <gtest/gtest.h>
#include <numbers>

namespace {

const QColor accent(0x5E, 0x6A, 0xD2);

struct SizeAndScale
{
    qreal size;
    qreal scale;
};

QImage statusImage(const StatusDrawing &status, SizeAndScale at)
{
    return Pixels::painted(at.size, at.scale,
                           [&](QPainter &painter) { paintStatusIcon(painter, status, at.size); });
}

StatusDrawing inProgress(double progress)
{
    return {StatusCategory::InProgress, progress, accent};
}

class StatusAtSize : public testing::TestWithParam<SizeAndScale>
{
};

std::string nameOf(const testing::TestParamInfo<SizeAndScale> &info)
{
    return std::to_string(static_cast<int>(info.param.size)) + "at" +
           std::to_string(static_cast<int>(info.param.scale));
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Sizes, StatusAtSize,
                         testing::Values(SizeAndScale{10, 1}, SizeAndScale{10, 2},
                                         SizeAndScale{14, 1}, SizeAndScale{14, 2},
                                         SizeAndScale{20, 1}, SizeAndScale{20, 2}),
                         nameOf);

TEST_P(StatusAtSize, RingIsATenthOfTheSizeButNotUnderOnePointTwo)
{
    const auto [size, scale] = GetParam();
    const auto image = statusImage({StatusCategory::Todo, 0, accent}, GetParam());
    const int middle = image.height() / 2;
    EXPECT_NEAR(Pixels::coveredInRow(image, middle, 0, middle, scale), std::max(size / 10, 1.2),
                0.12);
    EXPECT_EQ(qAlpha(image.pixel(middle, middle)), 0);
}

TEST_P(StatusAtSize, RingTouchesTheSquare)
{
    const auto image = statusImage({StatusCategory::Todo, 0, accent}, GetParam());
    const int middle = image.width() / 2;
    EXPECT_GT(qAlpha(image.pixel(middle, 0)), 100);
    EXPECT_GT(qAlpha(image.pixel(middle, image.height() - 1)), 100);
    EXPECT_EQ(qAlpha(image.pixel(0, 0)), 0);
}

TEST_P(StatusAtSize, PieCoversItsShareOfItsCircle)
{
    const auto [size, scale] = GetParam();
    const qreal ring = Pixels::coveredArea(statusImage(inProgress(0), GetParam()), scale);
    const qreal radius = size / 2 - 0.24 * size;
    for (const double progress : {0.25, 0.5, 0.75}) {
        const qreal pie =
            Pixels::coveredArea(statusImage(inProgress(progress), GetParam()), scale) - ring;
        EXPECT_NEAR(pie, progress * std::numbers::pi * radius * radius, 0.03 * size) << progress;
    }
}

TEST_P(StatusAtSize, FinishedDiscIsFilledWithTheAccentAndTickedWhite)
{
    const auto image = statusImage({StatusCategory::Done, 0, accent}, GetParam());
    const qreal scale = GetParam().scale;
    const qreal size = GetParam().size;
    EXPECT_NEAR(Pixels::coveredArea(image, scale), std::numbers::pi * size * size / 4,
                0.025 * size * size);
    EXPECT_EQ(image.pixelColor(image.width() / 2, static_cast<int>(image.height() * 0.14)).rgb(),
              accent.rgb());
    // The lowest corner of the tick.
    const QPointF corner(0.28 + 0.44 * 0.36, 0.28 + 0.44 * 0.88);
    const QRect around(((corner * size * scale) - QPointF(1, 1)).toPoint(), QSize(2, 2));
    int whitest = 0;
    for (int y = around.top(); y <= around.bottom(); ++y) {
        for (int x = around.left(); x <= around.right(); ++x)
            whitest = std::max(whitest, image.pixelColor(x, y).red());
    }
    EXPECT_GT(whitest, 200);
}

TEST(StatusPainter, AtSizeTenTheRingIsOnePointTwoAndNotOne)
{
    EXPECT_DOUBLE_EQ(statusRingWidth(10), 1.2);
    EXPECT_DOUBLE_EQ(statusRingWidth(12), 1.2);
    EXPECT_DOUBLE_EQ(statusRingWidth(14), 1.4);
}

TEST(StatusPainter, ExactlyHalfWayIsInProgressAndJustOverItIsReview)
{
    const auto colorAt = [](double progress) {
        const auto image = statusImage(inProgress(progress), {100, 1});
        return image.pixelColor(60, 40);
    };
    EXPECT_EQ(colorAt(0.5), IdentityColors::inProgress());
    EXPECT_EQ(colorAt(0.501), IdentityColors::review());
}

TEST(StatusPainter, PieGrowsClockwiseFromTwelve)
{
    const auto image = statusImage(inProgress(0.25), {100, 1});
    EXPECT_GT(qAlpha(image.pixel(60, 40)), 200) << "upper right";
    EXPECT_EQ(qAlpha(image.pixel(60, 60)), 0) << "lower right";
    EXPECT_EQ(qAlpha(image.pixel(40, 60)), 0) << "lower left";
    EXPECT_EQ(qAlpha(image.pixel(40, 40)), 0) << "upper left";
}

TEST(StatusPainter, PieOfNothingHasTwoStepsAndNoArea)
{
    const auto slice = pieSlice(QRectF(0, 0, 10, 10), 0);
    // The centre, three points of the arc, and the centre again.
    ASSERT_EQ(slice.size(), 5);
    EXPECT_EQ(slice[1], slice[3]);
    EXPECT_DOUBLE_EQ(slice.boundingRect().width(), 0);
}

TEST(StatusPainter, SmallPieStillHasTwoStepsAndAFullOneSeventyTwo)
{
    EXPECT_EQ(pieSlice(QRectF(0, 0, 10, 10), 0.01).size(), 5);
    EXPECT_EQ(pieSlice(QRectF(0, 0, 10, 10), 0.5).size(), 36 + 3);
    EXPECT_EQ(pieSlice(QRectF(0, 0, 10, 10), 1).size(), 72 + 3);
}

TEST(StatusPainter, BacklogRingIsDashedInThirteenAndTwelveHundredths)
{
    constexpr qreal size = 100;
    const auto image = statusImage({StatusCategory::Backlog, 0, accent}, {size, 4});
    const qreal radius = (size - statusRingWidth(size)) / 2;
    const qreal around = 2 * std::numbers::pi * radius;
    constexpr int samples = 20000;
    int covered = 0;
    int starts = 0;
    bool before = true;
    for (int i = 0; i < samples; ++i) {
        const double angle = 2 * std::numbers::pi * i / samples;
        const QPointF point(size / 2 + radius * std::cos(angle),
                            size / 2 + radius * std::sin(angle));
        const bool on = qAlpha(image.pixel((point * 4).toPoint())) > 127;
        covered += on ? 1 : 0;
        starts += on && !before ? 1 : 0;
        before = on;
    }
    EXPECT_NEAR(starts, around / (0.25 * size), 1.0);
    EXPECT_NEAR(1.0 * covered / samples, 0.52, 0.02);
}

TEST(StatusPainter, CancelledDiscIsNeutralWithAWhiteCross)
{
    const auto image = statusImage({StatusCategory::Cancelled, 0, accent}, {100, 1});
    EXPECT_EQ(image.pixelColor(50, 10), IdentityColors::neutral());
    EXPECT_EQ(image.pixelColor(50, 50), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(36, 36), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(64, 36), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(50, 36), IdentityColors::neutral());
}
