#include "screens/theme/IdentityColors.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<AccentChoice, 7> choices{
    AccentChoice::Indigo, AccentChoice::Blue,  AccentChoice::Purple,  AccentChoice::Pink,
    AccentChoice::Orange, AccentChoice::Green, AccentChoice::Graphite};

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const double lighter = std::max(luminance(a), luminance(b));
    const double darker = std::min(luminance(a), luminance(b));
    return (lighter + 0.05) / (darker + 0.05);
}

QColor unit(double red, double green, double blue)
{
    return QColor::fromRgb(qRound(red * 255), qRound(green * 255), qRound(blue * 255));
}

} // namespace

TEST(IdentityColors, AccentsAreTheSevenOfTheChoice)
{
    const std::array<QColor, 7> expected{
        QColor(94, 106, 210), unit(.16, .5, .96),  unit(.6, .36, .9),  unit(.9, .3, .56),
        unit(.95, .5, .16),   unit(.16, .66, .42), unit(.45, .47, .53)};
    for (size_t i = 0; i < choices.size(); ++i) {
        const auto color = IdentityColors::accent(choices[i]);
        EXPECT_NEAR(color.red(), expected[i].red(), 1) << i;
        EXPECT_NEAR(color.green(), expected[i].green(), 1) << i;
        EXPECT_NEAR(color.blue(), expected[i].blue(), 1) << i;
    }
}

TEST(IdentityColors, WhiteReadsOnEveryAccentFill)
{
    for (const auto choice : choices)
        EXPECT_GE(contrast(IdentityColors::accentFill(choice), Qt::white), 4.5)
            << static_cast<int>(choice);
}

TEST(IdentityColors, EveryAccentReadsAsTextOnItsPlane)
{
    using IdentityColors::Ground;
    for (const auto choice : choices) {
        EXPECT_GE(contrast(IdentityColors::accentText(choice, Ground::Light), Qt::white), 4.5);
        EXPECT_GE(
            contrast(IdentityColors::accentText(choice, Ground::Dark), QColor(0x14, 0x14, 0x17)),
            4.5);
    }
}

TEST(IdentityColors, LabelsKeepTheirColourOnEveryMachine)
{
    EXPECT_EQ(IdentityColors::label(u"ios"), QColor(0x5C, 0x6B, 0xD1));
    EXPECT_EQ(IdentityColors::label(u"auth"), QColor(0x26, 0xB5, 0x75));
    EXPECT_EQ(IdentityColors::label(u"tech-debt"), QColor(0xD9, 0xA8, 0x1A));
    EXPECT_EQ(IdentityColors::label(u"widget"), QColor(0x7D, 0x8F, 0x9E));
}

TEST(IdentityColors, ProjectsTakeTheHashDividedBySeven)
{
    EXPECT_EQ(IdentityColors::project(u"MOB"), QColor(0xD9, 0xA8, 0x1A));
    EXPECT_EQ(IdentityColors::project(u"WEB"), QColor(0xF0, 0x73, 0x38));
    EXPECT_EQ(IdentityColors::project(u"DS"), QColor(0xD9, 0xA8, 0x1A));
    EXPECT_EQ(IdentityColors::project(u"SUP"), QColor(0x26, 0xB5, 0x75));
}

TEST(IdentityColors, PersonsHueComesFromTheId)
{
    // The hash of the empty text is 5381, and 5381 mod 360 is 341.
    const auto color = IdentityColors::person(u"");
    EXPECT_NEAR(color.hsvHueF() * 360, 341, 0.5);
    EXPECT_NEAR(color.hsvSaturationF(), 0.42, 0.005);
    EXPECT_NEAR(color.valueF(), 0.72, 0.005);
    EXPECT_NE(IdentityColors::person(u"a"), IdentityColors::person(u"b"));
}
