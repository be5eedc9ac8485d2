#include "screens/documents/content/PanelStyle.h"

#include "screens/kit/painters/SymbolPainter.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Expected
{
    const char16_t *type;
    QString icon;
    PanelColor color;
};

const Expected table[]{
    {u"warning", u"exclamationmark.triangle.fill"_s, PanelColor::Orange},
    {u"error", u"xmark.octagon.fill"_s, PanelColor::Red},
    {u"success", u"checkmark.circle.fill"_s, PanelColor::Green},
    {u"note", u"note.text"_s, PanelColor::Purple},
    {u"info", u"info.circle.fill"_s, PanelColor::Blue},
};

} // namespace

TEST(PanelStyle, FollowsThePanelType)
{
    for (const auto &expected : table) {
        const auto style = PanelStyle::of(QString::fromUtf16(expected.type));
        EXPECT_EQ(style.icon, expected.icon);
        EXPECT_EQ(style.color, expected.color);
    }
}

TEST(PanelStyle, OfAnUnknownOrAbsentTypeIsThatOfAnInformationPanel)
{
    const auto info = PanelStyle::of(u"info"_s);
    for (const auto &type :
         {std::optional(u"custom"_s), std::optional(QString()), std::optional<QString>()})
        EXPECT_EQ(PanelStyle::of(type), info);
}

TEST(PanelStyle, NamesSymbolsOfTheKit)
{
    for (const auto &expected : table)
        EXPECT_TRUE(symbolNames().contains(expected.icon)) << expected.icon.toStdString();
}
