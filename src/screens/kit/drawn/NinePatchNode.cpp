#include "screens/kit/drawn/NinePatchNode.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGRectangleNode>
#include <QSGTexture>

namespace {

/// The two positions that divide a side of the picture into three parts: from 0 to first, to second, to end.
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

// The outer parts keep their size, and the middle part takes the rest.
Cuts targetCuts(const Cuts &source, qreal length, qreal scale)
{
    const qreal half = source.first / scale;
    return {half, std::max(half, length - half), std::max(2 * half, length)};
}

QRectF part(const Cuts &across, const Cuts &down, int column, int row)
{
    return {QPointF(across.from(column), down.from(row)), QPointF(across.to(column), down.to(row))};
}

} // namespace

void NinePatchNode::show(QQuickWindow *window, std::shared_ptr<QSGTexture> texture, qreal scale,
                         const QRectF &box, const QColor &middle)
{
    if (m_texture == texture && m_box == box && m_middle == middle)
        return;
    // The nodes are removed before the texture that they use may be destroyed.
    clear();
    m_texture = std::move(texture);
    m_box = box;
    m_middle = middle;
    layOut(window, scale);
}

void NinePatchNode::layOut(QQuickWindow *window, qreal scale)
{
    const QSize pixels = m_texture->textureSize();
    const auto sourceAcross = sourceCuts(pixels.width());
    const auto sourceDown = sourceCuts(pixels.height());
    const auto targetAcross = targetCuts(sourceAcross, m_box.width(), scale);
    const auto targetDown = targetCuts(sourceDown, m_box.height(), scale);
    constexpr int middle = 4;
    for (int i = 0; i < 9; ++i) {
        const auto target =
            part(targetAcross, targetDown, i % 3, i / 3).translated(m_box.topLeft());
        if (target.isEmpty())
            continue;
        if (i == middle)
            fill(window, target);
        else
            add(window, target, part(sourceAcross, sourceDown, i % 3, i / 3));
    }
}

void NinePatchNode::add(QQuickWindow *window, const QRectF &target, const QRectF &source)
{
    // A part with an empty source is stretched from the line of pixels next to the cut.
    const QRectF drawn = source.isEmpty() ? source.adjusted(0, 0, source.width() > 0 ? 0 : 1,
                                                            source.height() > 0 ? 0 : 1)
                                          : source;
    auto *node = window->createImageNode();
    node->setTexture(m_texture.get());
    node->setFiltering(QSGTexture::Linear);
    node->setSourceRect(drawn);
    node->setRect(target);
    appendChildNode(node);
}

void NinePatchNode::fill(QQuickWindow *window, const QRectF &target)
{
    if (m_middle.alpha() == 0)
        return;
    auto *node = window->createRectangleNode();
    node->setRect(target);
    node->setColor(m_middle);
    appendChildNode(node);
}

void NinePatchNode::clear()
{
    while (auto *child = firstChild()) {
        removeChildNode(child);
        std::unique_ptr<QSGNode>(child).reset();
    }
}
