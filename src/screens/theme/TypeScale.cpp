#include "screens/theme/TypeScale.h"

#include <QFontMetricsF>
#include <QHash>

#include <array>
#include <cmath>
#include <map>
#include <tuple>

using namespace Qt::StringLiterals;

namespace {

enum class Family { Text, ElevenHalf, TenHalf, Display, Code };

struct Style
{
    Family family;
    qreal size;
    qreal line;
    QFont::Weight weight;
    qreal tracking;
};

// In the order of the roles.
constexpr std::array<Style, 14> styles{{
    {Family::Display, 28, 34, QFont::Bold, -0.3},
    {Family::Display, 22, 28, QFont::DemiBold, -0.05},
    {Family::Display, 20, 25, QFont::Bold, -0.2},
    {Family::Display, 17, 22, QFont::DemiBold, -0.1},
    {Family::Text, 17, 22, QFont::Normal, -0.15},
    {Family::Text, 15, 19, QFont::DemiBold, -0.1},
    {Family::Text, 14, 19, QFont::Normal, 0},
    {Family::Text, 13, 18, QFont::Normal, -0.04},
    {Family::Text, 12, 16, QFont::Normal, 0},
    {Family::ElevenHalf, 11.5, 14, QFont::Medium, 0},
    {Family::Text, 11, 14, QFont::Normal, 0},
    {Family::TenHalf, 10.5, 14, QFont::Medium, 0},
    {Family::Text, 10, 13, QFont::Normal, 0},
    {Family::Code, 12, 18, QFont::Normal, 0},
}};

QStringList families(Family family, bool tabular)
{
    if (family == Family::Code)
        return {u"Velmora Mono"_s, u"DejaVu Sans Mono"_s, u"monospace"_s};
    if (family == Family::ElevenHalf)
        return {u"Velmora Eleven Half"_s, u"Velmora"_s, u"sans-serif"_s};
    if (family == Family::TenHalf)
        return {u"Velmora Ten Half"_s, u"Velmora"_s, u"sans-serif"_s};
    if (tabular)
        return {u"Velmora Tabular"_s, u"Velmora"_s, u"sans-serif"_s};
    if (family == Family::Display)
        return {u"Velmora Display"_s, u"Velmora"_s, u"sans-serif"_s};
    return {u"Velmora"_s, u"sans-serif"_s};
}

QFont makeFont(const QStringList &names, qreal pixels, QFont::Weight weight)
{
    QFont font;
    font.setFamilies(names);
    // Qt supports only whole pixel sizes. The half sizes use families that compensate for the rounding.
    font.setPixelSize(static_cast<int>(std::ceil(pixels)));
    font.setWeight(weight);
    // With hinting, widths would change by a whole pixel from one size to the next.
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QFont makeFont(TypeScale::Role role, int weight, bool tabular)
{
    const auto &style = styles[role];
    const auto given =
        weight == TypeScale::roleWeight ? style.weight : static_cast<QFont::Weight>(weight);
    QFont font = makeFont(families(style.family, tabular), style.size, given);
    font.setLetterSpacing(QFont::AbsoluteSpacing, style.tracking);
    return font;
}

} // namespace

// Every text of a screen requests its font, and only few fonts differ.
QFont TypeScale::font(Role role, int weight, bool tabular) const
{
    static std::map<std::tuple<int, int, bool>, QFont> fonts;
    const std::tuple key{static_cast<int>(role), weight, tabular};
    const auto known = fonts.find(key);
    if (known != fonts.end())
        return known->second;
    return fonts.emplace(key, makeFont(role, weight, tabular)).first->second;
}

qreal TypeScale::lineHeight(Role role) const
{
    return styles[role].line;
}

qreal TypeScale::halfLeading(Role role) const
{
    static QHash<int, qreal> leadings;
    const auto known = leadings.constFind(role);
    if (known != leadings.cend())
        return *known;
    // Qt Quick rounds the height of a line up to whole pixels.
    const qreal height = std::ceil(QFontMetricsF(fontOf(role)).height());
    return *leadings.insert(role, (styles[role].line - height) / 2);
}

QFont TypeScale::fontOf(Role role)
{
    return makeFont(role, roleWeight, false);
}

QFont TypeScale::textFont(qreal pixels, QFont::Weight weight)
{
    return makeFont(families(Family::Text, false), pixels, weight);
}
