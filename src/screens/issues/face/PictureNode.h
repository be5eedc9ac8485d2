#pragma once

#include "screens/issues/face/IssueIcons.h"

#include <QSGTransformNode>

#include <vector>

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
