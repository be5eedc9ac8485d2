#include "screens/issues/face/IssueCaptions.h"

#include "screens/issues/face/IssueIcons.h"

namespace IssueCaptions {

Caption caption(const QString &text, TypeScale::Role role, int weight, const QColor &color,
                bool isTabular)
{
    const TypeScale scale;
    return {.text = text,
            .font = scale.font(role, weight, isTabular),
            .height = scale.lineHeight(role),
            .leading = scale.halfLeading(role),
            .color = color};
}

Caption inMiddle(QPointF corner, double height, const Caption &caption)
{
    Caption placed = caption;
    placed.place = corner + QPointF(0, IssueIcons::centred(height, caption.height));
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
    return caption(text, TypeScale::Badge, TypeScale::roleWeight, color, true);
}

Caption key(const QString &text, const QColor &color)
{
    return caption(text, TypeScale::Badge, QFont::Normal, color, true);
}

} // namespace IssueCaptions
