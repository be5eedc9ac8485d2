#include "screens/kit/images/ImageDecoding.h"

#include <QBuffer>
#include <QImageReader>

#include <algorithm>
#include <array>

namespace {

constexpr std::array formats{"png", "jpeg", "jpg", "gif", "bmp", "ico", "webp"};

bool isPicture(const QByteArray &format)
{
    return std::ranges::any_of(formats, [&](const char *known) { return format == known; });
}

/// The size of an embedded picture (a PNG icon) is known only during decoding.
void limitAllocation()
{
    constexpr int megabytes = 128;
    static const bool isSet = [] {
        QImageReader::setAllocationLimit(megabytes);
        return true;
    }();
    Q_UNUSED(isSet)
}

bool isWithin(QSize size, const ImageLimits &limits)
{
    return !size.isEmpty() && qint64(size.width()) * size.height() <= limits.pixels;
}

QImage kept(const QImage &image, int side)
{
    if (std::max(image.width(), image.height()) <= side)
        return image;
    return image.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

} // namespace

QImage decodedImage(const QByteArray &bytes, const ImageLimits &limits)
{
    if (bytes.isEmpty() || bytes.size() > limits.bytes)
        return {};
    limitAllocation();
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    if (!isPicture(reader.format()) || !isWithin(reader.size(), limits))
        return {};
    QImage image;
    // The reader keeps the decoded part of a truncated picture.
    if (!reader.read(&image))
        return {};
    return kept(image, limits.keptSide);
}
