#include "screens/Bench.h"
#include "screens/kit/painters/FramePainter.h"

#include <QPainter>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QColor line(0, 0, 0, 28);
const QColor light(255, 255, 255, 230);

FrameDrawing capsule(const QString &shadow, Appearance appearance = Appearance::Light)
{
    return {.size = {60, 32},
            .radius = 16,
            .shadows = shadowsNamed(shadow, appearance, Qt::red),
            .hairline = line,
            .edgeLight = light};
}

} // namespace

class FrameAtScale : public testing::TestWithParam<int>
{
};

INSTANTIATE_TEST_SUITE_P(Scales, FrameAtScale, testing::Values(1, 2));

TEST_P(FrameAtScale, HairlineIsOneDevicePixelOutsideTheShape)
{
    const int scale = GetParam();
    auto frame = capsule(u"none"_s);
    frame.edgeLight = Qt::transparent;
    const auto image = frameImage(frame, scale);
    const int edge = frameMargin(frame.shadows) * scale;
    const int middle = image.height() / 2;
    EXPECT_NEAR(image.pixelColor(edge - 1, middle).alpha(), line.alpha(), 1);
    EXPECT_NEAR(image.pixelColor(edge, middle).alpha(), 0, 1);
    if (scale > 1)
        EXPECT_EQ(image.pixelColor(edge - 2, middle).alpha(), 0);
}

TEST_P(FrameAtScale, LightEdgeIsOneDevicePixelInsideTheTopOnly)
{
    const int scale = GetParam();
    const auto frame = capsule(u"none"_s);
    const auto image = frameImage(frame, scale);
    const int top = frameMargin(frame.shadows) * scale;
    const int across = image.width() / 2;
    EXPECT_EQ(image.pixelColor(across, top), light);
    EXPECT_EQ(image.pixelColor(across, top + 1).alpha(), 0);
    EXPECT_EQ(image.pixelColor(across, image.height() - 1 - top).alpha(), 0);
}

TEST_P(FrameAtScale, ShadowLiesOutsideAndMostlyBelow)
{
    const int scale = GetParam();
    for (const auto &name : {u"capsule"_s, u"pane"_s, u"bar"_s, u"popover"_s, u"sheet"_s, u"card"_s,
                             u"palette"_s, u"segment"_s, u"knob"_s}) {
        const auto frame = capsule(name);
        const auto image = frameImage(frame, scale);
        const int margin = frameMargin(frame.shadows) * scale;
        const int across = image.width() / 2;
        const int below = image.pixelColor(across, image.height() - margin + scale).alpha();
        const int above = image.pixelColor(across, margin - 1 - scale).alpha();
        EXPECT_GT(below, 3) << name.toStdString();
        EXPECT_GT(below, above) << name.toStdString();
        EXPECT_EQ(image.pixelColor(across, image.height() / 2).alpha(), 0) << name.toStdString();
        EXPECT_LE(image.pixelColor(across, image.height() - 1).alpha(), 1)
            << name.toStdString() << " is cut off";
        EXPECT_LE(image.pixelColor(0, image.height() / 2).alpha(), 1)
            << name.toStdString() << " is cut off";
    }
}

TEST(Frame, ShadowsAreStrongerInTheDark)
{
    const auto strength = [](Appearance appearance) {
        const auto frame = capsule(u"popover"_s, appearance);
        const auto image = frameImage(frame, 1);
        return image.pixelColor(image.width() / 2, image.height() - frameMargin(frame.shadows) + 4)
            .alpha();
    };
    EXPECT_GT(strength(Appearance::Dark), 2 * strength(Appearance::Light));
}

TEST(Frame, ProminentShadowTakesTheAccent)
{
    for (const auto &shadow : shadowsNamed(u"prominent"_s, Appearance::Light, Qt::red))
        EXPECT_EQ(shadow.color.rgb(), QColor(Qt::red).rgb());
}

TEST(Frame, UnknownShadowIsNone)
{
    EXPECT_TRUE(shadowsNamed(u"no such shadow"_s, Appearance::Light, Qt::red).empty());
}

TEST(Frame, MiddleIsTheSameWhicheverWayTheSizeGrows)
{
    // Stretching the image relies on this: between the corners, nothing changes along an edge.
    auto frame = capsule(u"pane"_s);
    const int corner = frameCorner(frame.shadows, frame.radius);
    frame.size = {2.0 * corner + 41, 2.0 * corner + 1};
    const auto image = frameImage(frame, 1);
    const int margin = frameMargin(frame.shadows);
    for (int y = 0; y < image.height(); ++y) {
        const int first = image.pixelColor(margin + corner, y).alpha();
        const int last = image.pixelColor(margin + corner + 40, y).alpha();
        EXPECT_NEAR(first, last, 1) << y;
    }
}

TEST(SoftShadow, BlurKeepsTheInkAndFollowsTheGaussian)
{
    QImage point(101, 101, QImage::Format_Alpha8);
    point.fill(0);
    for (int y = 41; y < 60; ++y) {
        for (int x = 41; x < 60; ++x)
            point.scanLine(y)[x] = 255;
    }
    const auto blurred = blurredAlpha(point, 6);
    double sum = 0;
    for (int y = 0; y < 101; ++y) {
        for (int x = 0; x < 101; ++x)
            sum += blurred.constScanLine(y)[x];
    }
    EXPECT_NEAR(sum / (19.0 * 19 * 255), 1, 0.03);
    // The Gaussian integral over ±9.5 at sigma 6, squared for the two directions.
    EXPECT_NEAR(blurred.constScanLine(50)[50] / 255.0,
                std::pow(std::erf(9.5 / 6 / std::sqrt(2.0)), 2), 0.03);
}

TEST(Frame, StaysRoundItsPanelWhenThatShrinks)
{
    Bench bench;
    QQuickItem *root = bench.show(uR"(
        Rectangle {
            width: 400
            height: 300
            color: "white"
            GlassPanel {
                objectName: "panel"
                x: 200
                y: 120
                width: 150
                height: 120
                radius: 12
                shadow: "palette"
            }
        })"_s);
    ASSERT_NE(root, nullptr) << bench.warnings();
    const auto shown = [&bench] { return bench.window().grabWindow(); };
    EXPECT_EQ(shown().pixelColor(60, 60), QColor(Qt::white));
    root->findChild<QQuickItem *>(u"panel"_s)->setHeight(60);
    const QImage after = shown();
    // If its position were ignored, it would be drawn in the corner of the window.
    for (int x = 2; x < 150; x += 4)
        EXPECT_EQ(after.pixelColor(x, 2), QColor(Qt::white)) << x;
}

TEST(Frame, LooksStretchedAsPaintedWhole)
{
    const QColor below(128, 128, 160);
    Bench bench;
    const QQuickItem *root = bench.show(uR"(
        Rectangle {
            width: 400
            height: 300
            color: "#8080A0"
            GlassFrame {
                x: 60
                y: 60
                width: 250
                height: 160
                radius: 12
                shadow: "pane"
                hairline: Qt.rgba(0, 0, 0, 28 / 255)
                edgeLight: Qt.rgba(1, 1, 1, 230 / 255)
            }
        })"_s);
    ASSERT_NE(root, nullptr) << bench.warnings();
    const QImage shown = bench.window().grabWindow();

    const FrameDrawing frame{.size = {250, 160},
                             .radius = 12,
                             .shadows = shadowsNamed(u"pane"_s, Appearance::Light, Qt::red),
                             .hairline = line,
                             .edgeLight = light};
    const qreal scale = bench.window().effectiveDevicePixelRatio();
    const qreal corner = 60 - frameMargin(frame.shadows);
    QImage painted(shown.size(), QImage::Format_RGB32);
    painted.fill(below);
    QPainter(&painted).drawImage(QPointF(corner, corner) * scale, frameImage(frame, scale));
    for (int y = 0; y < qRound(300 * scale); ++y) {
        for (int x = 0; x < qRound(400 * scale); ++x) {
            const auto is = shown.pixelColor(x, y);
            const auto should = painted.pixelColor(x, y);
            ASSERT_NEAR(is.red(), should.red(), 4) << x << ", " << y;
            ASSERT_NEAR(is.blue(), should.blue(), 4) << x << ", " << y;
        }
    }
}
