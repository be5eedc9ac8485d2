#pragma once

#include <QColor>
#include <QSizeF>
#include <QString>

#include <functional>
#include <memory>

class QPainter;
class QQuickWindow;
class QSGTexture;

/// What tells one drawn picture from another. Each kind of picture says what its numbers, text and colours mean.
struct PictureKey
{
    int kind = 0;
    double value = 0;
    double detail = 0;
    QString text;
    QColor color;
    QColor secondColor;
    /// In logical pixels.
    QSizeF size;

    bool operator==(const PictureKey &) const = default;
};

/// Paints a picture in logical pixels.
using PicturePainter = std::function<void(QPainter &)>;

/// The texture of a picture in a window, at `scale` device pixels to a logical one; equal pictures share one for as long
/// as any of them lives. To be called from `updatePaintNode` and held by the node, so that the texture dies on the thread
/// that draws the window.
std::shared_ptr<QSGTexture> pictureTexture(QQuickWindow *window, const PictureKey &key, qreal scale,
                                           const PicturePainter &paint);
