#pragma once

#include <QColor>
#include <QSizeF>
#include <QString>

#include <functional>
#include <memory>

class QPainter;
class QQuickWindow;
class QSGTexture;

/// Identifies a drawn picture. The meaning of the numbers, the text and the colours depends on the kind of picture.
struct PictureKey
{
    int kind = 0;
    double value = 0;
    double detail = 0;
    QString text;
    QColor color;
    QColor secondColor;
    /// The size in logical pixels.
    QSizeF size;

    bool operator==(const PictureKey &) const = default;
};

/// Paints a picture, in logical pixels.
using PicturePainter = std::function<void(QPainter &)>;

/// The texture of a picture in a window, with `scale` device pixels per logical pixel. Equal pictures share one texture
/// while any of them exists. Call it from `updatePaintNode` and keep the result in the node, so that the texture is
/// destroyed on the render thread of the window.
std::shared_ptr<QSGTexture> pictureTexture(QQuickWindow *window, const PictureKey &key, qreal scale,
                                           const PicturePainter &paint);
