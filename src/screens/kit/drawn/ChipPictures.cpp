#include "screens/kit/drawn/ChipPictures.h"

#include "screens/kit/painters/ChipPainter.h"

namespace {

/// Distinguish these textures from those of other pictures.
enum Kind { LabelChip = 200, DueBadge };

PictureKey keyOf(Kind kind, QSizeF size, const QColor &outline, const QColor &ink)
{
    return {.kind = kind, .color = ink, .secondColor = outline, .size = size};
}

} // namespace

PlacedPicture labelChipPicture(QSizeF size, const QColor &outline, const QColor &dot)
{
    return {keyOf(LabelChip, size, outline, dot),
            [=](QPainter &painter) { paintLabelChip(painter, size, outline, dot); },
            {}};
}

PlacedPicture dueBadgePicture(QSizeF size, const QColor &outline, const QColor &ink)
{
    return {keyOf(DueBadge, size, outline, ink),
            [=](QPainter &painter) { paintDueBadge(painter, size, outline, ink); },
            {}};
}
