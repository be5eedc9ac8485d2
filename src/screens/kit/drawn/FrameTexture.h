#pragma once

#include "screens/kit/painters/FramePainter.h"

#include <memory>

class QQuickWindow;
class QSGTexture;

/// The texture of a frame in a window. Equal frames share one texture while any of them exists. Call it from
/// `updatePaintNode` and keep the result in the node, so that the texture is destroyed on the render thread of the
/// window.
std::shared_ptr<QSGTexture> frameTexture(QQuickWindow *window, const FrameDrawing &frame,
                                         qreal scale);
