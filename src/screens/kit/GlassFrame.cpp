#include "screens/kit/GlassFrame.h"

#include "screens/kit/FrameTexture.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGTexture>

#include <array>

namespace {

/// Where a side of the picture is cut in three: from 0 to first, to second, to end.
struct Cuts
{
    qreal first = 0;
    qreal second = 0;
    qreal end = 0;

    qreal from(int part) const { return part == 0 ? 0 : part == 1 ? first : second; }
    qreal to(int part) const { return part == 0 ? first : part == 1 ? second : end; }
};

Cuts sourceCuts(int pixels)
{
    const int half = pixels / 2;
    return {static_cast<qreal>(half), static_cast<qreal>(pixels - half),
            static_cast<qreal>(pixels)};
}

// The ends keep their size; the middle takes the rest.
Cuts targetCuts(const Cuts &source, qreal length, qreal scale)
{
    const qreal half = source.first / scale;
    return {half, std::max(half, length - half), std::max(2 * half, length)};
}

QRectF part(const Cuts &across, const Cuts &down, int column, int row)
{
    return {QPointF(across.from(column), down.from(row)), QPointF(across.to(column), down.to(row))};
}

// A node of transformation, though it moves nothing: the software renderer forgets where a plain node stands, and would
// draw the parts that come later at the window's corner.
class FrameNode : public QSGTransformNode
{
public:
    void show(QQuickWindow *window, std::shared_ptr<QSGTexture> texture)
    {
        if (m_texture != texture)
            clear();
        m_window = window;
        m_texture = std::move(texture);
    }

    // The middle of the nine parts is empty and the dearest to draw.
    void layOut(const QRectF &box, qreal scale)
    {
        clear();
        const QSize pixels = m_texture->textureSize();
        const auto sourceAcross = sourceCuts(pixels.width());
        const auto sourceDown = sourceCuts(pixels.height());
        const auto targetAcross = targetCuts(sourceAcross, box.width(), scale);
        const auto targetDown = targetCuts(sourceDown, box.height(), scale);
        for (int i = 0; i < 9; ++i) {
            const QRectF target = part(targetAcross, targetDown, i % 3, i / 3);
            if (i != 4 && !target.isEmpty())
                add(target.translated(box.topLeft()), part(sourceAcross, sourceDown, i % 3, i / 3));
        }
    }

private:
    void add(const QRectF &target, const QRectF &source)
    {
        // Parts with nothing to stretch from are stretched from the pixel line beside the cut.
        const QRectF drawn = source.isEmpty() ? source.adjusted(0, 0, source.width() > 0 ? 0 : 1,
                                                                source.height() > 0 ? 0 : 1)
                                              : source;
        auto *node = m_window->createImageNode();
        node->setTexture(m_texture.get());
        node->setFiltering(QSGTexture::Linear);
        node->setSourceRect(drawn);
        node->setRect(target);
        appendChildNode(node);
    }

    void clear()
    {
        while (auto *child = firstChild()) {
            removeChildNode(child);
            std::unique_ptr<QSGNode>(child).reset();
        }
    }

    QQuickWindow *m_window = nullptr;
    std::shared_ptr<QSGTexture> m_texture;
};

} // namespace

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
    auto node = std::unique_ptr<FrameNode>(static_cast<FrameNode *>(old));
    if (width() <= 0 || height() <= 0)
        return nullptr;
    if (!node)
        node = std::make_unique<FrameNode>();
    const auto frame = drawing();
    const qreal scale = window()->effectiveDevicePixelRatio();
    const qreal margin = frameMargin(frame.shadows);
    node->show(window(), frameTexture(window(), frame, scale));
    node->layOut(boundingRect().adjusted(-margin, -margin, margin, margin), scale);
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
