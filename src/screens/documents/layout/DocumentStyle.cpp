#include "screens/documents/layout/DocumentStyle.h"

#include "screens/theme/TypeScale.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double cellSize = 12;
constexpr double mentionSize = 13;

} // namespace

void DocumentStyle::setTextScale(double scale)
{
    const double bounded = std::isfinite(scale) ? std::clamp(scale, 0.5, 4.0) : 1;
    if (std::exchange(m_textScale, bounded) != bounded)
        Q_EMIT fontsChanged();
}

QColor DocumentStyle::ink(double opacity) const
{
    QColor color = primary;
    color.setAlphaF(float(opacity));
    return color;
}

QColor DocumentStyle::panel(PanelColor color) const
{
    switch (color) {
    case PanelColor::Orange:
        return orange;
    case PanelColor::Red:
        return red;
    case PanelColor::Green:
        return green;
    case PanelColor::Purple:
        return purple;
    case PanelColor::Blue:
        break;
    }
    return blue;
}

QColor DocumentStyle::textColor(const TextBlock &text, const InlineRun &run) const
{
    if (run.isAccented)
        return accentText;
    return run.color.value_or(text.isSecondary ? secondary : primary);
}

QFont DocumentStyle::scaled(QFont font) const
{
    font.setPixelSize(std::max(1, int(std::lround(font.pixelSize() * m_textScale))));
    return font;
}

QFont DocumentStyle::font(TextBlock::Role role, double bodySize) const
{
    switch (role) {
    case TextBlock::Role::Heading1:
        return scaled(TypeScale().font(TypeScale::Title2, QFont::DemiBold));
    case TextBlock::Role::Heading2:
        return scaled(TypeScale().font(TypeScale::Title3));
    case TextBlock::Role::Heading3:
        return scaled(TypeScale().font(TypeScale::Headline));
    case TextBlock::Role::Code:
        return scaled(TypeScale().font(TypeScale::Code));
    case TextBlock::Role::Cell:
        return scaled(TypeScale().font(TypeScale::Small));
    case TextBlock::Role::HeaderCell:
        return scaled(TypeScale().font(TypeScale::Small, QFont::DemiBold));
    case TextBlock::Role::Title:
        return scaled(TypeScale().font(TypeScale::Body, QFont::DemiBold));
    case TextBlock::Role::Body:
        break;
    }
    return scaled(TypeScale::textFont(bodySize, QFont::Normal));
}

QFont DocumentStyle::font(TextBlock::Role role, double bodySize, const InlineRun &run) const
{
    QFont font = this->font(role, bodySize);
    if (run.kind == InlineRun::Kind::Status) {
        font = scaled(TypeScale().font(TypeScale::Micro, QFont::Bold));
    } else if (run.kind != InlineRun::Kind::Text) {
        font = scaled(TypeScale::textFont(mentionSize, QFont::DemiBold));
    } else if (run.isCode) {
        font = scaled(TypeScale().font(TypeScale::Code));
    }
    if (run.isStrong)
        font.setWeight(QFont::Bold);
    font.setItalic(run.isEmphasized);
    font.setUnderline(run.isUnderlined);
    font.setStrikeOut(run.isStruck);
    return font;
}

QFont DocumentStyle::markerFont(TextBlock::Role role, double bodySize) const
{
    QFont font = TypeScale().font(TypeScale::Small, QFont::Normal, true);
    const bool isCell = role == TextBlock::Role::Cell || role == TextBlock::Role::HeaderCell;
    font.setPixelSize(int(std::ceil(isCell ? cellSize : bodySize)));
    return scaled(font);
}
