#pragma once

#include "screens/issues/board/CardGround.h"
#include "screens/issues/face/PictureNode.h"

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
    /// A shadow that shows in part.
    struct Veil
    {
        QSGOpacityNode *opacity = nullptr;
        NinePatchNode *shadow = nullptr;
    };

    void showShadows(QQuickWindow *window, QSizeF size, double lift);
    Veil addVeil();
    void dropShadows();

    NinePatchNode *m_ground;
    PictureNode *m_pictures;
    /// Of the card at rest and raised, below the ground, while it is on the way between the two.
    std::vector<Veil> m_veils;
};
