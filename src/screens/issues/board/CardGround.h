#pragma once

#include "screens/kit/drawn/PictureTexture.h"
#include "screens/kit/painters/FramePainter.h"

#include <QColor>

/// What lies under all parts of a card: its fill, the line round it and its shadow, as one picture to be stretched.
struct CardGround
{
    /// At rest, or raised under the pointer.
    enum Shadow { None, Rest, Raised };

    static constexpr double radius = 11;

    QColor fill;
    QColor edge;
    /// Lies inside the card's box; in logical pixels.
    double edgeWidth = 1;
    Shadow shadow = Rest;

    bool operator==(const CardGround &) const = default;
};

/// The smallest frame with such a shadow whose corners are those of a card.
FrameDrawing cardFrame(CardGround::Shadow shadow);
PictureKey cardGroundKey(const CardGround &ground);
/// Paints the ground of a card that is as large as its frame and begins at the frame's margin.
void paintCardGround(QPainter &painter, const CardGround &ground);
