#include "screens/issues/CardNode.h"

#include "screens/kit/FrameTexture.h"
#include "screens/kit/NinePatchNode.h"

#include <QQuickWindow>

namespace {

/// The box of a stretched frame, which reaches beyond the card's.
QRectF boxOf(QSizeF size, const FrameDrawing &frame)
{
    const double margin = frameMargin(frame.shadows);
    return QRectF(QPointF(), size).adjusted(-margin, -margin, margin, margin);
}

} // namespace

CardNode::CardNode()
    : m_ground(std::make_unique<NinePatchNode>().release()),
      m_pictures(std::make_unique<PictureNode>().release())
{
    appendChildNode(m_ground);
    appendChildNode(m_pictures);
}

void CardNode::showGround(QQuickWindow *window, QSizeF size, CardGround ground, double lift)
{
    const bool isMoving = lift > 0 && lift < 1;
    ground.shadow = isMoving ? CardGround::None : lift > 0 ? CardGround::Raised : CardGround::Rest;
    dropShadows();
    if (isMoving) {
        showShadow(window, size, CardGround::Rest, 1 - lift);
        showShadow(window, size, CardGround::Raised, lift);
    }
    const qreal scale = window->effectiveDevicePixelRatio();
    const auto texture =
        pictureTexture(window, cardGroundKey(ground), scale,
                       [&ground](QPainter &painter) { paintCardGround(painter, ground); });
    m_ground->show(window, texture, scale, boxOf(size, cardFrame(ground.shadow)), ground.fill);
}

void CardNode::showShadow(QQuickWindow *window, QSizeF size, CardGround::Shadow shadow,
                          double opacity)
{
    const auto frame = cardFrame(shadow);
    const qreal scale = window->effectiveDevicePixelRatio();
    auto picture = std::make_unique<NinePatchNode>();
    picture->show(window, frameTexture(window, frame, scale), scale, boxOf(size, frame));
    auto veil = std::make_unique<QSGOpacityNode>();
    veil->setOpacity(opacity);
    veil->appendChildNode(picture.release());
    m_shadows.push_back(veil.get());
    insertChildNodeBefore(veil.release(), m_ground);
}

void CardNode::dropShadows()
{
    for (auto *shadow : m_shadows) {
        removeChildNode(shadow);
        const std::unique_ptr<QSGNode> dropped(shadow);
    }
    m_shadows.clear();
}

void CardNode::showPictures(QQuickWindow *window, const std::vector<PlacedPicture> &pictures)
{
    m_pictures->show(window, pictures);
}
