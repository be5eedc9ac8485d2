#pragma once

#include "screens/kit/drawn/PictureTexture.h"

#include <QPointF>
#include <QSGTransformNode>

#include <vector>

/// A picture and the position of its upper left corner, in logical pixels.
struct PlacedPicture
{
    PictureKey key;
    PicturePainter paint;
    QPointF place;

    /// The same picture at another position.
    PlacedPicture at(QPointF corner) const { return {key, paint, corner}; }
};

/// A set of pictures, each with a texture that is shared by all equal pictures. It is a transform node, although it
/// moves nothing, because the software renderer loses the position of a plain node.
class PictureNode : public QSGTransformNode
{
public:
    /// Replaces the shown pictures.
    void show(QQuickWindow *window, const std::vector<PlacedPicture> &pictures);

private:
    /// The textures of the child nodes, in their order.
    std::vector<std::shared_ptr<QSGTexture>> m_textures;
};
