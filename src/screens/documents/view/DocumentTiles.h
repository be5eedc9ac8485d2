#pragma once

#include <QRectF>
#include <QSGTransformNode>

#include <functional>
#include <map>

class QPainter;
class QQuickWindow;

/// Shows a tall picture in tiles, of which only those in sight exist. It is a transform node, although it moves
/// nothing, because the software renderer loses the position of a plain node.
class DocumentTiles : public QSGTransformNode
{
public:
    /// The height of a tile, in logical pixels.
    static constexpr double TileHeight = 256;

    struct View
    {
        /// The whole picture, and the part of it that is in sight.
        QRectF whole;
        QRectF visible;
        /// The number of device pixels for each logical pixel.
        double scale = 1;
        /// Moves the tiles onto whole device pixels.
        QPointF snap;
    };
    /// Paints a rectangle of the picture, in its coordinates.
    using Paint = std::function<void(QPainter &, const QRectF &)>;

    DocumentTiles();

    /// Creates missing tiles and removes those out of sight.
    void show(QQuickWindow *window, const View &view, const Paint &paint);
    /// The picture has changed between two vertical positions.
    void invalidate(double top, double bottom);
    int count() const { return int(m_tiles.size()); }

private:
    struct Tile;

    void removeTile(int index);

    /// The nodes of the tiles, which the scene graph owns, by their numbers from the top.
    std::map<int, QSGNode *> m_tiles;
    QRectF m_whole;
    double m_scale = 0;
};
