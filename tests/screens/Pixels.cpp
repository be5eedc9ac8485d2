#include "screens/Pixels.h"

#include <cmath>

QImage Pixels::painted(qreal side, qreal scale, const std::function<void(QPainter &)> &paint)
{
    const int pixels = static_cast<int>(std::ceil(side * scale));
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(scale, scale);
    paint(painter);
    return image;
}

qreal Pixels::coveredInRow(const QImage &image, int y, int fromX, int toX, qreal scale)
{
    qreal covered = 0;
    for (int x = fromX; x < toX; ++x)
        covered += qAlpha(image.pixel(x, y)) / 255.0;
    return covered / scale;
}

qreal Pixels::coveredInColumn(const QImage &image, int x, int fromY, int toY, qreal scale)
{
    qreal covered = 0;
    for (int y = fromY; y < toY; ++y)
        covered += qAlpha(image.pixel(x, y)) / 255.0;
    return covered / scale;
}

qreal Pixels::coveredArea(const QImage &image, qreal scale)
{
    qreal covered = 0;
    for (int y = 0; y < image.height(); ++y)
        covered += coveredInRow(image, y, 0, image.width(), scale);
    return covered / scale;
}
