#pragma once

#include <QByteArray>
#include <QImage>

/// Limits for external pictures, so that none can block the program or exhaust its memory.
struct ImageLimits
{
    qint64 bytes = qint64(16) * 1024 * 1024;
    /// The maximum number of pixels of the original picture. Decoding needs up to about 100 MB.
    qint64 pixels = qint64(24) * 1024 * 1024;
    /// The maximum length of the longer side, in pixels. Larger pictures are scaled down.
    int keptSide = 2048;
};

/// Decodes a picture and rotates it according to its orientation tag. For an animation, the first frame. Null for bytes
/// that are not a picture (PNG, JPEG, GIF, BMP, ICO or WebP), that are truncated, or that exceed the limits: the
/// declared size is checked before anything is decoded. Vector formats that need an interpreter (SVG, PDF) are not
/// supported. May be called from any thread.
QImage decodedImage(const QByteArray &bytes, const ImageLimits &limits = {});
