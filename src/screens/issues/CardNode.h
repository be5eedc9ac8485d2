#pragma once

#include "screens/issues/CardGround.h"
#include "screens/issues/PictureNode.h"

class NinePatchNode;

/// What a card draws: its ground, and its pictures on it.
class CardNode : public QSGTransformNode
{
public:
    CardNode();

    /// `lift` goes from 0, at rest, to 1, raised under the pointer; on the way both shadows show.
    void showGround(QQuickWindow *window, QSizeF size, CardGround ground, double lift);
    void showPictures(QQuickWindow *window, const std::vector<PlacedPicture> &pictures);

private:
    void showShadow(QQuickWindow *window, QSizeF size, CardGround::Shadow shadow, double opacity);
    void dropShadows();

    NinePatchNode *m_ground;
    PictureNode *m_pictures;
    /// Below the ground, while there are any.
    std::vector<QSGOpacityNode *> m_shadows;
};
