#pragma once

#include "screens/kit/painters/SoftShadow.h"

#include <QImage>
#include <QSizeF>
#include <QString>

#include <vector>

/// The edge effects of glass: a shadow of one or two parts outside the shape, a line of one device pixel around it, and
/// a light line of one device pixel inside its upper edge.
struct FrameDrawing
{
    /// The size of the shape, in logical pixels.
    QSizeF size;
    qreal radius = 0;
    std::vector<SoftShadow> shadows;
    /// The colour of the outline. Transparent for none.
    QColor hairline = Qt::transparent;
    QColor edgeLight = Qt::transparent;
};

/// The appearance for which a picture is drawn.
enum class Appearance { Light, Dark };

/// The shadows with a name: none, card, cardHover, palette, onboarding, mention, capsule, pane, bar, popover or sheet.
/// "prominent" uses `accent`. Empty for an unknown name.
std::vector<SoftShadow> shadowsNamed(const QString &name, Appearance appearance,
                                     const QColor &accent);
/// The distance that the shadows extend beyond the shape, at least 1 for the hairline, in whole logical pixels.
int frameMargin(const std::vector<SoftShadow> &shadows);
/// The extent of the corners of the nine-patch, measured from the edge of the shape, in whole logical pixels.
int frameCorner(const std::vector<SoftShadow> &shadows, qreal radius);
/// The frame as a picture with `scale` device pixels per logical pixel, larger than the shape by `frameMargin` on each
/// side.
QImage frameImage(const FrameDrawing &frame, qreal scale);
