#pragma once

#include <QImage>
#include <QRect>

/// The number of pixels in which two pictures differ visibly, and their bounding box.
struct PictureDifference
{
    int pixels = 0;
    QRect where;

    /// True if the pixels are too few for a moved edge. Font rendering may round single pixels differently.
    bool isForgiven() const { return pixels <= 4; }
};

/// Pictures of different sizes differ in all pixels.
PictureDifference pictureDifference(const QImage &first, const QImage &second);
