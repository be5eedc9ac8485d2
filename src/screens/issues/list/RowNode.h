#pragma once

#include "screens/issues/face/FaceNode.h"

class NinePatchNode;

/// The scene graph node of a row: its background, if it has one, and its pictures and texts above it.
class RowNode : public QSGTransformNode
{
public:
    explicit RowNode(QQuickItem &item);

    /// Fills the row, which is `size` in logical pixels. A transparent fill removes the background.
    void showFill(QQuickWindow *window, QSizeF size, const QColor &fill);
    void showFace(QQuickWindow *window, const std::vector<PlacedPicture> &pictures,
                  const CaptionLayouts &captions);

private:
    /// Exists only while the row has a background.
    NinePatchNode *m_fill = nullptr;
    FaceNode *m_face;
};
