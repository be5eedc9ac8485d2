#include "screens/kit/painters/SoftShadow.h"

#include <QPainter>

#include <cmath>

namespace {

using Line = std::vector<float>;

// The mean over 2 × radius + 1 values, where values beyond the ends count as 0.
void runningMean(const Line &from, Line &to, int radius)
{
    const int count = static_cast<int>(from.size());
    const auto at = [&](int i) {
        return i >= 0 && i < count ? from[static_cast<size_t>(i)] : 0.0F;
    };
    float sum = 0;
    for (int i = -radius; i <= radius; ++i)
        sum += at(i);
    for (int i = 0; i < count; ++i) {
        to[static_cast<size_t>(i)] = sum / static_cast<float>(2 * radius + 1);
        sum += at(i + radius + 1) - at(i - radius);
    }
}

// The radii of three means whose variances add up to that of the Gaussian.
std::array<int, 3> meanRadii(qreal sigma)
{
    const qreal ideal = std::sqrt(4 * sigma * sigma + 1);
    int lower = static_cast<int>(std::floor(ideal));
    if (lower % 2 == 0)
        --lower;
    const qreal short3 =
        (12 * sigma * sigma - 3.0 * lower * lower - 12.0 * lower - 9) / (-4.0 * lower - 4);
    const int shorter = static_cast<int>(std::round(short3));
    std::array<int, 3> radii{};
    for (int i = 0; i < 3; ++i)
        radii[static_cast<size_t>(i)] = ((i < shorter ? lower : lower + 2) - 1) / 2;
    return radii;
}

void blurLine(Line &line, const std::array<int, 3> &radii)
{
    Line other(line.size());
    for (const int radius : radii) {
        runningMean(line, other, radius);
        line.swap(other);
    }
}

void blurRows(QImage &image, const std::array<int, 3> &radii)
{
    Line line(static_cast<size_t>(image.width()));
    for (int y = 0; y < image.height(); ++y) {
        uchar *row = image.scanLine(y);
        std::copy_n(row, line.size(), line.begin());
        blurLine(line, radii);
        std::transform(line.begin(), line.end(), row,
                       [](float v) { return static_cast<uchar>(std::lround(v)); });
    }
}

QImage transposed(const QImage &image)
{
    QImage turned(image.height(), image.width(), QImage::Format_Alpha8);
    for (int y = 0; y < image.height(); ++y) {
        const uchar *row = image.constScanLine(y);
        for (int x = 0; x < image.width(); ++x)
            turned.scanLine(x)[y] = row[x];
    }
    return turned;
}

QImage coverage(const QPainterPath &shape, QSize pixels, qreal scale)
{
    QImage image(pixels, QImage::Format_Alpha8);
    image.fill(0);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    painter.fillPath(shape, Qt::black);
    return image;
}

QImage tinted(const QImage &alpha, const QColor &color)
{
    QImage image(alpha.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.drawImage(0, 0, alpha);
    return image;
}

} // namespace

qreal shadowReach(const SoftShadow &shadow)
{
    return std::ceil(1.2 * shadow.blur + std::abs(shadow.offset));
}

QImage blurredAlpha(const QImage &alpha, qreal sigma)
{
    const auto radii = meanRadii(sigma);
    QImage image = alpha;
    blurRows(image, radii);
    image = transposed(image);
    blurRows(image, radii);
    return transposed(image);
}

void paintSoftShadow(QPainter &painter, const QPainterPath &shape, const SoftShadow &shadow,
                     qreal scale)
{
    // A wide blur has no detail, so half the resolution is enough and needs a quarter of the work.
    const qreal own = shadow.blur * scale > 16 ? scale / 2 : scale;
    const QRectF box = shape.boundingRect();
    const qreal reach = shadowReach(shadow);
    const QPointF corner = box.topLeft() - QPointF(reach, reach);
    const QSize pixels = ((box.size() + QSizeF(2 * reach, 2 * reach)) * own).toSize();
    const auto blurred =
        blurredAlpha(coverage(shape.translated(-corner), pixels, own), shadow.blur / 2 * own);
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.translate(corner + QPointF(0, shadow.offset));
    painter.scale(1 / own, 1 / own);
    painter.drawImage(0, 0, tinted(blurred, shadow.color));
    painter.restore();
}
