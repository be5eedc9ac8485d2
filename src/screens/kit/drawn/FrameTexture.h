#pragma once

#include "screens/kit/painters/FramePainter.h"

#include <memory>

class QQuickWindow;
class QSGTexture;

/// The texture of a frame in a window; equal frames share one for as long as any of them lives. To be called from
/// `updatePaintNode` and held by the node, so that the texture dies on the thread that draws the window.
std::shared_ptr<QSGTexture> frameTexture(QQuickWindow *window, const FrameDrawing &frame,
                                         qreal scale);
