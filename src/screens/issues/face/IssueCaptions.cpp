#include "screens/issues/face/IssueCaptions.h"

#include "screens/issues/face/IssueIcons.h"

namespace IssueCaptions {

namespace {

Caption caption(const QString &text, TypeScale::Role role, int weight, const QColor &color)
{
    const TypeScale scale;
    const bool isTabular = role == TypeScale::Badge;
    return {{}, text, scale.font(role, weight, isTabular), scale.halfLeading(role), color};
}

/// The line height of the roles Badge and Caption.
constexpr double lineHeight = 14;

} // namespace

Caption inMiddle(QPointF corner, double height, const Caption &caption)
{
    Caption placed = caption;
    placed.place = corner + QPointF(0, IssueIcons::centred(height, lineHeight));
    return placed;
}

Caption label(const QString &name, const QColor &color)
{
    return caption(name, TypeScale::Caption, QFont::Medium, color);
}

Caption more(qsizetype count, const QColor &color)
{
    return caption(u'+' + QString::number(count), TypeScale::Caption, TypeScale::roleWeight, color);
}

Caption due(const QString &text, const QColor &color)
{
    return caption(text, TypeScale::Badge, TypeScale::roleWeight, color);
}

Caption key(const QString &text, const QColor &color)
{
    return caption(text, TypeScale::Badge, QFont::Normal, color);
}

} // namespace IssueCaptions
