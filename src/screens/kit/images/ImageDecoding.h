#pragma once

#include <QByteArray>
#include <QImage>

/// What a picture from outside may cost, so that none can stall the program or take its memory.
struct ImageLimits
{
    qint64 bytes = qint64(16) * 1024 * 1024;
    /// Of the picture as it comes; about 100 MB while it is decoded.
    qint64 pixels = qint64(24) * 1024 * 1024;
    /// The longer side of the picture as it is kept: larger ones are scaled down.
    int keptSide = 2048;
};

/// The picture in the bytes, turned as it asks to be; the first one of an animation. Null for bytes that are no picture
/// (PNG, JPEG, GIF, BMP, ICO or WebP), that end too early, or that pass the limits: the size that a picture claims is
/// looked at before anything of it is decoded. Drawings that must be run (SVG, PDF) are no pictures here. To be called
/// from any thread.
QImage decodedImage(const QByteArray &bytes, const ImageLimits &limits = {});
