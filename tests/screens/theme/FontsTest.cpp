#include "screens/theme/Fonts.h"

#include "screens/theme/TypeScale.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Fonts, FamiliesAreCompiledIn)
{
    ASSERT_TRUE(Fonts::load());
    const auto families = QFontDatabase::families();
    for (const auto &family :
         {u"Velmora"_s, u"Velmora Display"_s, u"Velmora Tabular"_s, u"Velmora Mono"_s})
        EXPECT_TRUE(families.contains(family)) << family.toStdString();
}

TEST(Fonts, EveryRoleIsDrawnInItsOwnFamily)
{
    const TypeScale scale;
    EXPECT_EQ(QFontInfo(scale.font(TypeScale::Title1)).family(), u"Velmora Display"_s);
    EXPECT_EQ(QFontInfo(scale.font(TypeScale::Body)).family(), u"Velmora"_s);
    EXPECT_EQ(QFontInfo(scale.font(TypeScale::Code)).family(), u"Velmora Mono"_s);
    EXPECT_EQ(QFontInfo(scale.font(TypeScale::Small, TypeScale::roleWeight, true)).family(),
              u"Velmora Tabular"_s);
}

TEST(Fonts, TabularDigitsAreAllOfOneWidth)
{
    const TypeScale scale;
    for (const int weight : {QFont::Normal, QFont::Medium, QFont::DemiBold}) {
        const QFontMetricsF metrics(scale.font(TypeScale::Small, weight, true));
        for (char16_t digit = u'0'; digit <= u'9'; ++digit)
            EXPECT_NEAR(metrics.horizontalAdvance(digit), metrics.horizontalAdvance(u'0'), 0.05)
                << weight << static_cast<unsigned>(digit);
    }
    const QFontMetricsF proportional(scale.font(TypeScale::Small));
    EXPECT_LT(proportional.horizontalAdvance(u'1'), proportional.horizontalAdvance(u'0'));
}

TEST(Fonts, HeavierWeightsAreWider)
{
    const TypeScale scale;
    const auto width = [&](int weight) {
        return QFontMetricsF(scale.font(TypeScale::Body, weight))
            .horizontalAdvance(u"Notifications"_s);
    };
    EXPECT_LT(width(QFont::Normal), width(QFont::Medium));
    EXPECT_LT(width(QFont::Medium), width(QFont::DemiBold));
    EXPECT_LT(width(QFont::DemiBold), width(QFont::Bold));
}

TEST(Fonts, HalfPixelSizesAreKept)
{
    const TypeScale scale;
    const auto width = [&](TypeScale::Role role) {
        return QFontMetricsF(scale.font(role, QFont::Medium))
            .horizontalAdvance(u"Notifications"_s.repeated(10));
    };
    EXPECT_NEAR(width(TypeScale::Badge) / width(TypeScale::Small), 11.5 / 12, 0.004);
    EXPECT_NEAR(width(TypeScale::Micro) / width(TypeScale::Caption), 10.5 / 11, 0.004);
}

TEST(Fonts, AlphabetsOfTheProgramAreThere)
{
    const QFontMetricsF metrics(TypeScale::fontOf(TypeScale::Body));
    for (const char16_t letter : u"ÀÉÈÊËÎÏÔŒÙÛÜÇàéèêëîïôœùûüç«»…’–—•×→↑↓↩⌘⇧⌥€"_s.toStdU16String())
        EXPECT_TRUE(metrics.inFont(letter)) << static_cast<unsigned>(letter);
}
