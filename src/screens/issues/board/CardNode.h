#pragma once

#include "screens/issues/board/CardGround.h"
#include "screens/issues/face/FaceNode.h"

class NinePatchNode;

/// The scene graph node of a card: its background, and its pictures and texts above it.
class CardNode : public QSGTransformNode
{
public:
    explicit CardNode(QQuickItem &item);

    /// `lift` is 0 at rest and 1 when raised under the pointer. In between, both shadows are shown.
    void showGround(QQuickWindow *window, QSizeF size, CardGround ground, double lift);
    void showFace(QQuickWindow *window, const std::vector<PlacedPicture> &pictures,
                  const CaptionLayouts &captions);

private:
    /// A partly transparent shadow.
    struct Veil
    {
        QSGOpacityNode *opacity = nullptr;
        NinePatchNode *shadow = nullptr;
    };

    void showShadows(QQuickWindow *window, QSizeF size, double lift);
    Veil addVeil();
    void dropShadows();

    NinePatchNode *m_ground;
    FaceNode *m_face;
    /// The shadows for the card at rest and raised, below the background. They exist only during the transition between
    /// the two.
    std::vector<Veil> m_veils;
};
