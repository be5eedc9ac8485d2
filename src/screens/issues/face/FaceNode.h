#pragma once

#include "screens/kit/drawn/PictureNode.h"

class CaptionLayouts;
class QQuickItem;

/// The scene graph node of a row or a card: its pictures, and its texts above them.
class FaceNode : public QSGTransformNode
{
public:
    explicit FaceNode(QQuickItem &item);

    void show(QQuickWindow *window, const std::vector<PlacedPicture> &pictures,
              const CaptionLayouts &captions);

private:
    PictureNode *m_pictures;
    QSGNode *m_texts;
    /// The version of the shown texts, and the scale for which they were made.
    std::pair<quint64, qreal> m_shown;
};
