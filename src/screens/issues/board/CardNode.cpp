#include "screens/issues/board/CardNode.h"

#include "screens/kit/drawn/NinePatchNode.h"

#include <QQuickWindow>

namespace {

/// The box of a stretched frame, which is larger than the box of the card.
QRectF boxOf(QSizeF size, const FrameDrawing &frame)
{
    const double margin = frameMargin(frame.shadows);
    return QRectF(QPointF(), size).adjusted(-margin, -margin, margin, margin);
}

void show(NinePatchNode &node, QQuickWindow *window, QSizeF size, const CardGround &ground)
{
    const qreal scale = window->effectiveDevicePixelRatio();
    const auto texture =
        pictureTexture(window, cardGroundKey(ground), scale,
                       [&ground](QPainter &painter) { paintCardGround(painter, ground); });
    node.show(window, texture, scale, boxOf(size, cardFrame(ground.shadow)), ground.fill);
}

CardGround shadowAlone(CardGround::Shadow shadow)
{
    return {.fill = Qt::transparent, .edge = Qt::transparent, .shadow = shadow};
}

} // namespace

CardNode::CardNode(QQuickItem &item)
    : m_ground(std::make_unique<NinePatchNode>().release()),
      m_face(std::make_unique<FaceNode>(item).release())
{
    appendChildNode(m_ground);
    appendChildNode(m_face);
}

void CardNode::showGround(QQuickWindow *window, QSizeF size, CardGround ground, double lift)
{
    const bool isMoving = lift > 0 && lift < 1;
    if (isMoving)
        showShadows(window, size, lift);
    else
        dropShadows();
    ground.shadow = isMoving ? CardGround::None : lift > 0 ? CardGround::Raised : CardGround::Rest;
    show(*m_ground, window, size, ground);
}

void CardNode::showShadows(QQuickWindow *window, QSizeF size, double lift)
{
    while (m_veils.size() < 2)
        m_veils.push_back(addVeil());
    show(*m_veils[0].shadow, window, size, shadowAlone(CardGround::Rest));
    show(*m_veils[1].shadow, window, size, shadowAlone(CardGround::Raised));
    m_veils[0].opacity->setOpacity(1 - lift);
    m_veils[1].opacity->setOpacity(lift);
}

CardNode::Veil CardNode::addVeil()
{
    auto opacity = std::make_unique<QSGOpacityNode>();
    auto shadow = std::make_unique<NinePatchNode>();
    const Veil veil{opacity.get(), shadow.get()};
    opacity->appendChildNode(shadow.release());
    insertChildNodeBefore(opacity.release(), m_ground);
    return veil;
}

void CardNode::dropShadows()
{
    for (const auto &veil : m_veils) {
        removeChildNode(veil.opacity);
        const std::unique_ptr<QSGNode> dropped(veil.opacity);
    }
    m_veils.clear();
}

void CardNode::showFace(QQuickWindow *window, const std::vector<PlacedPicture> &pictures,
                        const CaptionLayouts &captions)
{
    m_face->show(window, pictures, captions);
}
