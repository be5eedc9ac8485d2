#include "screens/kit/drawn/NinePatchNode.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGRectangleNode>
#include <QSGTexture>

#include <cmath>
#include <limits>

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

/// The outer part of a side, `thickness` thick. Corners and the middle are returned as they are.
QRectF outerPart(QRectF part, int column, int row, qreal thickness)
{
    if (row == 1 && column == 0)
        part.setRight(std::min(part.right(), part.left() + thickness));
    if (row == 1 && column == 2)
        part.setLeft(std::max(part.left(), part.right() - thickness));
    if (column == 1 && row == 0)
        part.setBottom(std::min(part.bottom(), part.top() + thickness));
    if (column == 1 && row == 2)
        part.setTop(std::max(part.top(), part.bottom() - thickness));
    return part;
}

} // namespace

void NinePatchNode::show(QQuickWindow *window, std::shared_ptr<QSGTexture> texture, qreal scale,
                         const QRectF &box, const QColor &middle)
{
    show(window, std::move(texture), {scale, box, middle, std::numeric_limits<qreal>::max()});
}

void NinePatchNode::showFrame(QQuickWindow *window, std::shared_ptr<QSGTexture> texture,
                              qreal scale, const QRectF &box, qreal sides)
{
    show(window, std::move(texture),
         {scale, box, Qt::transparent, std::ceil(sides * scale) / scale});
}

void NinePatchNode::show(QQuickWindow *window, std::shared_ptr<QSGTexture> texture,
                         const Shape &shape)
{
    if (m_texture == texture && m_shape == shape)
        return;
    // The nodes are removed before the texture that they use may be destroyed.
    clear();
    m_texture = std::move(texture);
    m_shape = shape;
    layOut(window);
}

void NinePatchNode::layOut(QQuickWindow *window)
{
    const QSize pixels = m_texture->textureSize();
    const auto &[scale, box, middle, sides] = m_shape;
    const auto sourceAcross = sourceCuts(pixels.width());
    const auto sourceDown = sourceCuts(pixels.height());
    const auto targetAcross = targetCuts(sourceAcross, box.width(), scale);
    const auto targetDown = targetCuts(sourceDown, box.height(), scale);
    for (int i = 0; i < 9; ++i) {
        const int column = i % 3;
        const int row = i / 3;
        const auto target =
            outerPart(part(targetAcross, targetDown, column, row), column, row, sides)
                .translated(box.topLeft());
        if (target.isEmpty())
            continue;
        if (column == 1 && row == 1)
            fill(window, target);
        else
            add(window, target,
                outerPart(part(sourceAcross, sourceDown, column, row), column, row, sides * scale));
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
    if (m_shape.middle.alpha() == 0)
        return;
    auto *node = window->createRectangleNode();
    node->setRect(target);
    node->setColor(m_shape.middle);
    appendChildNode(node);
}

void NinePatchNode::clear()
{
    while (auto *child = firstChild()) {
        removeChildNode(child);
        std::unique_ptr<QSGNode>(child).reset();
    }
}
