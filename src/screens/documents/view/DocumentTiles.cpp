#include "screens/documents/view/DocumentTiles.h"

#include <QImage>
#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGTexture>

#include <cmath>
#include <memory>

namespace {

QImage paintedTile(const QRectF &box, double scale, const DocumentTiles::Paint &paint)
{
    const QSize pixels(int(std::ceil(box.width() * scale)), int(std::ceil(box.height() * scale)));
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(scale, scale);
    painter.translate(-box.topLeft());
    paint(painter, box);
    return image;
}

} // namespace

DocumentTiles::DocumentTiles() = default;

void DocumentTiles::removeTile(int index)
{
    QSGNode *node = m_tiles.at(index);
    removeChildNode(node);
    std::unique_ptr<QSGNode>(node).reset();
    m_tiles.erase(index);
}

void DocumentTiles::invalidate(double top, double bottom)
{
    const auto tiles = m_tiles;
    for (const auto &[index, node] : tiles) {
        const double from = m_whole.top() + index * TileHeight;
        if (from <= bottom && from + TileHeight >= top)
            removeTile(index);
    }
}

void DocumentTiles::show(QQuickWindow *window, const View &view, const Paint &paint)
{
    const bool isSame = m_scale == view.scale && m_whole.width() == view.whole.width();
    m_scale = view.scale;
    const QRectF visible = view.visible & view.whole;
    const int first = int(std::floor((visible.top() - view.whole.top()) / TileHeight));
    const int last = visible.isEmpty()
                         ? first - 1
                         : int(std::floor((visible.bottom() - view.whole.top()) / TileHeight));
    const auto tiles = m_tiles;
    for (const auto &[index, node] : tiles) {
        // The lowest tile ends with the picture, so it is painted again when the picture grows.
        const double end = view.whole.top() + (index + 1) * TileHeight;
        const bool isCut = end > std::min(m_whole.bottom(), view.whole.bottom()) &&
                           m_whole.bottom() != view.whole.bottom();
        if (!isSame || isCut || index < first - 1 || index > last + 1)
            removeTile(index);
    }
    m_whole = view.whole;
    for (int index = first; index <= last; ++index) {
        const QRectF box = QRectF(m_whole.left(), m_whole.top() + index * TileHeight,
                                  m_whole.width(), TileHeight) &
                           m_whole;
        if (box.isEmpty())
            continue;
        auto &node = m_tiles[index];
        if (!node) {
            auto *image = window->createImageNode();
            image->setOwnsTexture(true);
            image->setFiltering(QSGTexture::Linear);
            image->setTexture(window->createTextureFromImage(paintedTile(box, view.scale, paint),
                                                             QQuickWindow::TextureHasAlphaChannel));
            image->setSourceRect(QRectF(QPointF(), image->texture()->textureSize()));
            node = image;
            appendChildNode(node);
        }
        const QSizeF size = static_cast<QSGImageNode *>(node)->texture()->textureSize();
        static_cast<QSGImageNode *>(node)->setRect(
            QRectF(box.topLeft() + view.snap, size / view.scale));
    }
}
