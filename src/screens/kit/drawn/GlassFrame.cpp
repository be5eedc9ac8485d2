#include "screens/kit/drawn/GlassFrame.h"

#include "screens/kit/drawn/FrameTexture.h"
#include "screens/kit/drawn/NinePatchNode.h"

#include <QQuickWindow>

GlassFrame::GlassFrame(QQuickItem *parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    connect(this, &GlassFrame::changed, this, &GlassFrame::update);
}

FrameDrawing GlassFrame::drawing() const
{
    FrameDrawing frame;
    frame.radius = m_radius;
    frame.shadows = shadowsNamed(m_shadow, m_dark ? Appearance::Dark : Appearance::Light, m_accent);
    frame.hairline = m_hairline;
    frame.edgeLight = m_edgeLight;
    const qreal enough = 2 * frameCorner(frame.shadows, m_radius) + 1;
    frame.size = size().boundedTo(QSizeF(enough, enough));
    return frame;
}

QSGNode *GlassFrame::updatePaintNode(QSGNode *old, UpdatePaintNodeData *)
{
    auto node = std::unique_ptr<NinePatchNode>(static_cast<NinePatchNode *>(old));
    if (width() <= 0 || height() <= 0)
        return nullptr;
    if (!node)
        node = std::make_unique<NinePatchNode>();
    const auto frame = drawing();
    const qreal scale = window()->effectiveDevicePixelRatio();
    const qreal margin = frameMargin(frame.shadows);
    // Inside the box, only the light line of its upper edge is drawn.
    node->showFrame(window(), frameTexture(window(), frame, scale), scale,
                    boundingRect().adjusted(-margin, -margin, margin, margin), margin + 1);
    return node.release();
}

void GlassFrame::geometryChange(const QRectF &now, const QRectF &before)
{
    QQuickItem::geometryChange(now, before);
    if (now.size() != before.size())
        update();
}

void GlassFrame::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemDevicePixelRatioHasChanged)
        update();
}
