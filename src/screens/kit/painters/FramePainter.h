#pragma once

#include "screens/kit/painters/SoftShadow.h"

#include <QImage>
#include <QSizeF>
#include <QString>

#include <vector>

/// What glass has round its fill: a shadow of one or two parts outside the shape, a line of one device pixel round it,
/// and a light line of one device pixel inside its upper edge.
struct FrameDrawing
{
    /// The shape, in logical pixels.
    QSizeF size;
    qreal radius = 0;
    std::vector<SoftShadow> shadows;
    /// Transparent for none.
    QColor hairline = Qt::transparent;
    QColor edgeLight = Qt::transparent;
};

/// Which of the two appearances a picture is for.
enum class Appearance { Light, Dark };

/// The shadows of a name: none, card, cardHover, palette, onboarding, mention, capsule, pane, bar, popover, sheet. The
/// name "prominent" takes `accent`. An unknown name has none.
std::vector<SoftShadow> shadowsNamed(const QString &name, Appearance appearance,
                                     const QColor &accent);
/// How far the shadows reach beyond the shape, at least 1 for the hairline, in whole logical pixels.
int frameMargin(const std::vector<SoftShadow> &shadows);
/// How far from the shape's edge the corners of the nine-patch go, in whole logical pixels.
int frameCorner(const std::vector<SoftShadow> &shadows, qreal radius);
/// The frame as a picture of `scale` device pixels per logical pixel, `frameMargin` larger than the shape on each side.
QImage frameImage(const FrameDrawing &frame, qreal scale);
