#include "screens/issues/board/CardGround.h"

#include <QPainter>

#include <map>

using namespace Qt::StringLiterals;

namespace {

/// Distinguishes these textures from those of the pictures on the card.
constexpr int groundKind = 100;

std::vector<SoftShadow> shadowsOf(CardGround::Shadow shadow)
{
    if (shadow == CardGround::None)
        return {};
    // Cards have the same shadows in both appearances.
    return shadowsNamed(shadow == CardGround::Raised ? u"cardHover"_s : u"card"_s,
                        Appearance::Light, QColor());
}

/// The frame is painted once for each scale, because cards are raised and lowered frequently and painting a shadow
/// takes longer than everything else.
const QImage &frameAt(CardGround::Shadow shadow, double scale)
{
    static std::map<std::pair<CardGround::Shadow, double>, QImage> images;
    auto &image = images[{shadow, scale}];
    if (image.isNull())
        image = frameImage(cardFrame(shadow), scale);
    return image;
}

void strokeEdge(QPainter &painter, const QRectF &box, const CardGround &ground)
{
    const double half = ground.edgeWidth / 2;
    const double radius = CardGround::radius - half;
    painter.setPen(QPen(ground.edge, ground.edgeWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(box.adjusted(half, half, -half, -half), radius, radius);
}

} // namespace

FrameDrawing cardFrame(CardGround::Shadow shadow)
{
    FrameDrawing frame;
    frame.radius = CardGround::radius;
    frame.shadows = shadowsOf(shadow);
    const double enough = 2 * frameCorner(frame.shadows, frame.radius) + 1;
    frame.size = {enough, enough};
    return frame;
}

PictureKey cardGroundKey(const CardGround &ground)
{
    const auto frame = cardFrame(ground.shadow);
    const double around = 2 * frameMargin(frame.shadows);
    return {.kind = groundKind,
            .value = ground.edgeWidth,
            .detail = double(ground.shadow),
            .text = {},
            .color = ground.edge,
            .secondColor = ground.fill,
            .size = frame.size + QSizeF(around, around)};
}

void paintCardGround(QPainter &painter, const CardGround &ground)
{
    const auto frame = cardFrame(ground.shadow);
    const double margin = frameMargin(frame.shadows);
    const QRectF box({margin, margin}, frame.size);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground.fill);
    painter.drawRoundedRect(box, CardGround::radius, CardGround::radius);
    painter.drawImage(box.adjusted(-margin, -margin, margin, margin),
                      frameAt(ground.shadow, painter.transform().m11()));
    strokeEdge(painter, box, ground);
}
