#include "screens/Bench.h"

#include <QColor>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QColor color(Bench &bench, const char *name)
{
    return bench.token("theme", name).value<QColor>();
}

} // namespace

TEST(Theme, HasBothAppearances)
{
    Bench bench;
    EXPECT_EQ(color(bench, "content"), QColor(u"#FFFFFF"_s));
    EXPECT_EQ(color(bench, "text1"), QColor(u"#1B1B1F"_s));
    bench.setToken("theme", "dark", true);
    EXPECT_EQ(color(bench, "content"), QColor(u"#141417"_s));
    EXPECT_EQ(color(bench, "text1"), QColor(u"#EDEDF2"_s));
    EXPECT_EQ(bench.warnings(), "");
}

TEST(Theme, FillsAreThePrimaryColourAtTheirOpacity)
{
    Bench bench;
    auto fill = color(bench, "hoverFill");
    EXPECT_NEAR(fill.alphaF(), 0.04, 0.002);
    EXPECT_EQ(QColor(fill.rgb()), QColor(u"#1B1B1F"_s));
    bench.setToken("theme", "dark", true);
    fill = color(bench, "hoverFill");
    EXPECT_EQ(QColor(fill.rgb()), QColor(u"#EDEDF2"_s));
}

TEST(Theme, AccentFollowsTheChoiceInEveryForm)
{
    Bench bench;
    const auto before = color(bench, "checkedFill");
    bench.setToken("theme", "accentChoice", 4);
    EXPECT_EQ(color(bench, "accent"), QColor(u"#F28029"_s));
    EXPECT_EQ(color(bench, "done"), QColor(u"#F28029"_s));
    EXPECT_EQ(color(bench, "accentFill"), QColor(u"#B35F1E"_s));
    EXPECT_EQ(color(bench, "accentText"), QColor(u"#9D531B"_s));
    EXPECT_NE(color(bench, "checkedFill"), before);
    bench.setToken("theme", "dark", true);
    EXPECT_EQ(color(bench, "accentText"), QColor(u"#F2832D"_s));
    EXPECT_EQ(bench.warnings(), "");
}

TEST(Theme, IdentityColoursAreTheSameInBoth)
{
    Bench bench;
    const auto light = color(bench, "inProgress");
    bench.setToken("theme", "dark", true);
    EXPECT_EQ(color(bench, "inProgress"), light);
    EXPECT_EQ(light, QColor(240, 191, 0));
}

TEST(Motion, ReducedMovesEndAtOnceAndFadesStay)
{
    Bench bench;
    EXPECT_EQ(bench.token("motion", "stateDuration").toInt(), 570);
    bench.setToken("motion", "reduced", true);
    EXPECT_EQ(bench.token("motion", "stateDuration").toInt(), 0);
    EXPECT_EQ(bench.token("motion", "toastInDuration").toInt(), 0);
    EXPECT_EQ(bench.token("motion", "pressScale").toDouble(), 1);
    EXPECT_EQ(bench.token("motion", "fadeDuration").toInt(), 120);
    EXPECT_EQ(bench.warnings(), "");
}

TEST(Motion, NothingIsScaledWhereTheRendererWouldShowSeams)
{
    Bench bench;
    EXPECT_DOUBLE_EQ(bench.token("motion", "pressScale").toDouble(), 0.97);
    bench.setToken("motion", "scales", false);
    EXPECT_DOUBLE_EQ(bench.token("motion", "pressScale").toDouble(), 1);
    EXPECT_DOUBLE_EQ(bench.token("motion", "popoverScale").toDouble(), 1);
    EXPECT_DOUBLE_EQ(bench.token("motion", "paletteScale").toDouble(), 1);
    EXPECT_EQ(bench.token("motion", "stateDuration").toInt(), 570);
    EXPECT_EQ(bench.warnings(), "");
}
