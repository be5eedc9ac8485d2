#pragma once

#include "screens/kit/drawn/PictureTexture.h"
#include "screens/kit/painters/FramePainter.h"
#include "screens/theme/Metrics.h"

#include <QColor>

/// The background of a card: its fill, its outline and its shadow, as one stretchable picture.
struct CardGround
{
    /// At rest, or raised under the pointer.
    enum Shadow { None, Rest, Raised };

    static constexpr double radius = Metrics::radiusCard;

    QColor fill;
    QColor edge;
    /// The width of the outline, which lies inside the card's box, in logical pixels.
    double edgeWidth = 1;
    Shadow shadow = Rest;

    bool operator==(const CardGround &) const = default;
};

/// The smallest frame that has this shadow and the corners of a card.
FrameDrawing cardFrame(CardGround::Shadow shadow);
PictureKey cardGroundKey(const CardGround &ground);
/// Paints the background of a card that is as large as its frame and starts at the frame's margin.
void paintCardGround(QPainter &painter, const CardGround &ground);
