#include "screens/kit/drawn/PictureNode.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGTexture>

#include <cmath>

void PictureNode::show(QQuickWindow *window, const std::vector<PlacedPicture> &pictures)
{
    std::vector<std::shared_ptr<QSGTexture>> textures;
    const qreal scale = window->effectiveDevicePixelRatio();
    auto *child = static_cast<QSGImageNode *>(firstChild());
    for (const auto &picture : pictures) {
        textures.push_back(pictureTexture(window, picture.key, scale, picture.paint));
        auto *node = child ? child : window->createImageNode();
        node->setTexture(textures.back().get());
        node->setFiltering(QSGTexture::Linear);
        node->setSourceRect(QRectF(QPointF(), textures.back()->textureSize()));
        const QSizeF size(std::ceil(picture.key.size.width()),
                          std::ceil(picture.key.size.height()));
        node->setRect(QRectF(picture.place, size));
        if (!child)
            appendChildNode(node);
        child = static_cast<QSGImageNode *>(node->nextSibling());
    }
    while (child) {
        auto *next = static_cast<QSGImageNode *>(child->nextSibling());
        removeChildNode(child);
        std::unique_ptr<QSGNode>(child).reset();
        child = next;
    }
    m_textures = std::move(textures);
}
