#pragma once

#include <QImage>
#include <QRect>

/// In how many pixels two pictures differ by more than the eye would forgive, and where.
struct PictureDifference
{
    int pixels = 0;
    QRect where;

    /// So few that no edge has moved: fonts may round a pixel otherwise.
    bool isForgiven() const { return pixels <= 4; }
};

/// Pictures of two sizes differ in all pixels.
PictureDifference pictureDifference(const QImage &first, const QImage &second);
