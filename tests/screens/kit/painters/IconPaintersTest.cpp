#include "model/JiraUser.h"
#include "screens/Pixels.h"
#include "screens/kit/painters/AvatarPainter.h"
#include "screens/kit/painters/BadgePainter.h"
#include "screens/kit/painters/GlyphPainter.h"
#include "screens/kit/painters/PriorityPainter.h"
#include "screens/kit/painters/SoftGradient.h"
#include "screens/kit/painters/SpinnerPainter.h"
#include "screens/kit/painters/TypePainter.h"
#include "screens/theme/IdentityColors.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QColor ink(0x1B, 0x1B, 0x1F);

QImage priorityImage(PriorityLevel level, const QColor &tint, qreal size, qreal scale)
{
    return Pixels::painted(
        size, scale, [&](QPainter &painter) { paintPriorityIcon(painter, level, tint, size); });
}

// The covered height in the middle of a bar, independent of its opacity.
qreal barHeight(const QImage &image, int bar, qreal size, qreal scale, qreal opacity)
{
    const qreal centre = (0.07 + 0.32 * bar + 0.11) * size * scale;
    return Pixels::coveredInColumn(image, static_cast<int>(centre), 0, image.height(), scale) /
           opacity;
}

} // namespace

class PriorityAtSize : public testing::TestWithParam<std::pair<int, int>>
{
};

INSTANTIATE_TEST_SUITE_P(Sizes, PriorityAtSize,
                         testing::Values(std::pair(10, 1), std::pair(10, 2), std::pair(14, 1),
                                         std::pair(14, 2), std::pair(20, 1), std::pair(20, 2)));

TEST_P(PriorityAtSize, BarsRiseByTwentyEightHundredths)
{
    const auto [size, scale] = GetParam();
    const auto image = priorityImage(PriorityLevel::High, ink, size, scale);
    for (int bar = 0; bar < 3; ++bar)
        EXPECT_NEAR(barHeight(image, bar, size, scale, 0.82), size * (0.28 * bar + 0.38), 0.15)
            << bar;
}

TEST_P(PriorityAtSize, FilledBarsAreStrongAndTheOthersFaint)
{
    const auto [size, scale] = GetParam();
    const std::pair<PriorityLevel, int> levels[]{
        {PriorityLevel::High, 3}, {PriorityLevel::Medium, 2}, {PriorityLevel::Low, 1}};
    for (const auto &[level, filled] : levels) {
        const auto image = priorityImage(level, ink, size, scale);
        for (int bar = 0; bar < 3; ++bar) {
            const int x = static_cast<int>((0.18 + 0.32 * bar) * size * scale);
            const int y = static_cast<int>(0.8 * size * scale);
            EXPECT_NEAR(qAlpha(image.pixel(x, y)) / 255.0, bar < filled ? 0.82 : 0.2, 0.02)
                << filled << ' ' << bar;
        }
    }
}

TEST(PriorityPainter, NoneIsThreeDashesOnTheMiddleLine)
{
    const auto image = priorityImage(PriorityLevel::None, IdentityColors::neutral(), 100, 1);
    EXPECT_NEAR(Pixels::coveredInRow(image, 50, 0, 100, 1), 66, 1);
    EXPECT_NEAR(Pixels::coveredInColumn(image, 50, 0, 100, 1), 12, 0.5);
    EXPECT_EQ(image.pixelColor(50, 50), IdentityColors::neutral());
}

TEST(PriorityPainter, UrgentIgnoresTheTint)
{
    EXPECT_EQ(priorityImage(PriorityLevel::Urgent, ink, 14, 2),
              priorityImage(PriorityLevel::Urgent, Qt::green, 14, 2));
    EXPECT_NE(priorityImage(PriorityLevel::High, ink, 14, 2),
              priorityImage(PriorityLevel::High, Qt::green, 14, 2));
}

TEST(PriorityPainter, UrgentIsAWhiteMarkInTheMiddleOfOrange)
{
    const auto image = priorityImage(PriorityLevel::Urgent, ink, 100, 1);
    EXPECT_EQ(image.pixelColor(50, 35), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(20, 50), IdentityColors::urgent());
    EXPECT_EQ(image.pixelColor(80, 50), IdentityColors::urgent());
    EXPECT_EQ(qAlpha(image.pixel(1, 1)), 0);
    EXPECT_GT(qAlpha(image.pixel(50, 0)), 250);
}

TEST(TypePainter, EachFamilyHasItsColour)
{
    using Kind = Model::IssueTypeKind;
    for (const auto kind :
         {Kind::Epic, Kind::Story, Kind::Bug, Kind::Task, Kind::Subtask, Kind::Other}) {
        const auto image =
            Pixels::painted(46, 1, [&](QPainter &painter) { paintTypeIcon(painter, kind, 40); });
        int own = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                own += image.pixelColor(x, y) == IdentityColors::type(kind) ? 1 : 0;
        }
        EXPECT_GT(own, 50) << static_cast<int>(kind);
    }
}

TEST(SoftGradient, IsSixteenPercentWhiteAtTheTopAndTheColourAtTheBottom)
{
    const auto stops = softGradient(QColor(100, 0, 200), QRectF(0, 0, 10, 10)).stops();
    ASSERT_EQ(stops.size(), 2);
    EXPECT_EQ(stops.first().second.rgb(), QColor(125, 41, 209).rgb());
    EXPECT_EQ(stops.last().second, QColor(100, 0, 200));
}

TEST(BadgePainter, LowerCaseNameShowsAnUpperCaseLetter)
{
    EXPECT_EQ(badgeLetter(u"app mobile"_s), u"A"_s);
    EXPECT_EQ(badgeLetter(u"écran"_s), u"É"_s);
}

TEST(BadgePainter, EmptyNameDrawsNoLetter)
{
    EXPECT_EQ(badgeLetter({}), QString());
    const auto bare = Pixels::painted(
        50, 1, [](QPainter &painter) { paintProjectBadge(painter, Qt::blue, {}, 50); });
    const auto lettered = Pixels::painted(
        50, 1, [](QPainter &painter) { paintProjectBadge(painter, Qt::blue, u"A"_s, 50); });
    EXPECT_EQ(bare.pixelColor(25, 25).red(), bare.pixelColor(5, 25).red());
    EXPECT_NE(bare, lettered);
}

TEST(BadgePainter, LetterIsCentred)
{
    const auto image = Pixels::painted(
        100, 1, [](QPainter &painter) { paintProjectBadge(painter, Qt::black, u"H"_s, 100); });
    QRect white;
    for (int y = 0; y < 100; ++y) {
        for (int x = 0; x < 100; ++x) {
            if (image.pixelColor(x, y).lightness() > 200)
                white |= QRect(x, y, 1, 1);
        }
    }
    EXPECT_NEAR(white.left(), 99 - white.right(), 1.5);
    EXPECT_NEAR(white.top(), 99 - white.bottom(), 1.5);
    EXPECT_NEAR(white.height(), 58 * 0.727, 1.5) << "the capital height of the family";
}

TEST(BadgePainter, AnEmojiIsDrawnInItsColoursAndCentred)
{
    const auto image = Pixels::painted(
        100, 1, [](QPainter &painter) { paintProjectBadge(painter, Qt::black, u"🍅"_s, 100); });
    QRect red;
    for (int y = 0; y < 100; ++y) {
        for (int x = 0; x < 100; ++x) {
            if (image.pixelColor(x, y).saturation() > 150)
                red |= QRect(x, y, 1, 1);
        }
    }
    EXPECT_GT(red.width(), 40);
    EXPECT_NEAR(red.center().x(), 50, 8);
    EXPECT_NEAR(red.center().y(), 50, 8);
}

TEST(AvatarPainter, NobodyIsADashedRingWithAPerson)
{
    const auto image = Pixels::painted(54, 2, [](QPainter &painter) { paintNobody(painter, 54); });
    EXPECT_EQ(image.pixelColor(54, 44), IdentityColors::neutral()) << "the head";
    const qreal ring = Pixels::coveredArea(image.copy(0, 0, 108, 14), 2);
    EXPECT_GT(ring, 5);
    EXPECT_LT(ring, 30) << "half of the line is missing";
}

TEST(GlyphPainter, MarkIsWhiteOnAGradientWithAShadowBelow)
{
    constexpr int size = 64;
    const int margin = static_cast<int>(appGlyphMargin(size));
    const auto image = Pixels::painted(size + 2 * margin, 1, [&](QPainter &painter) {
        painter.translate(margin, margin);
        paintAppGlyph(painter, size, 1);
    });
    EXPECT_GT(image.pixelColor(margin + 32, margin + 24).lightness(), 230);
    EXPECT_NEAR(image.pixelColor(margin + 32, margin + 4).red(), 115, 8);
    EXPECT_NEAR(image.pixelColor(margin + 32, margin + 60).red(), 84, 8);
    EXPECT_GT(qAlpha(image.pixel(margin + 32, margin + size + 4)), 20);
    EXPECT_GT(qAlpha(image.pixel(margin + 32, margin + size + 4)),
              qAlpha(image.pixel(margin + 32, margin - 5)));
    EXPECT_EQ(qAlpha(image.pixel(0, 0)), 0) << "the shadow is not cut off";
}

TEST(SpinnerPainter, BladesBrightenClockwiseFromTwelve)
{
    const auto image =
        Pixels::painted(64, 1, [](QPainter &painter) { paintSpinner(painter, Qt::black, 64); });
    EXPECT_NEAR(qAlpha(image.pixel(32, 12)), 0.2 * 255, 3);
    EXPECT_GT(qAlpha(image.pixel(18, 18)), 245);
    EXPECT_GT(qAlpha(image.pixel(32, 52)), qAlpha(image.pixel(52, 32)));
}
