#pragma once

#include "screens/kit/drawn/PictureNode.h"

/// The pictures of chips without their texts, for rows, cards and the components of the kit. Sizes are in logical
/// pixels.
PlacedPicture labelChipPicture(QSizeF size, const QColor &outline, const QColor &dot);
PlacedPicture dueBadgePicture(QSizeF size, const QColor &outline, const QColor &ink);
