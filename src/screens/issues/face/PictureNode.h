#pragma once

#include "screens/issues/face/IssuePictures.h"

#include <QSGTransformNode>

#include <vector>

/// Pictures side by side, each with a texture that it shares with all equal ones. A node of transformation, though it
/// moves nothing: the software renderer forgets where a plain node stands.
class PictureNode : public QSGTransformNode
{
public:
    /// Shows these in place of those before.
    void show(QQuickWindow *window, const std::vector<PlacedPicture> &pictures);

private:
    /// Holds the textures of the child nodes, in their order.
    std::vector<std::shared_ptr<QSGTexture>> m_textures;
};
