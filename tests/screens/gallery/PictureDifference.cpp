#include "screens/gallery/PictureDifference.h"

#include <QColor>

#include <algorithm>
#include <cstdlib>

namespace {

/// The largest difference that counts as equal, of 255, in any channel. The faintest fill differs by 9 from white.
constexpr int forgiven = 6;

bool differ(QRgb first, QRgb second)
{
    return std::max({std::abs(qRed(first) - qRed(second)), std::abs(qGreen(first) - qGreen(second)),
                     std::abs(qBlue(first) - qBlue(second))}) > forgiven;
}

} // namespace

PictureDifference pictureDifference(const QImage &first, const QImage &second)
{
    if (first.size() != second.size())
        return {std::max(first.width() * first.height(), second.width() * second.height()),
                first.rect() | second.rect()};
    const QImage left = first.convertToFormat(QImage::Format_RGB32);
    const QImage right = second.convertToFormat(QImage::Format_RGB32);
    PictureDifference difference;
    for (int y = 0; y < left.height(); ++y) {
        const auto *leftRow = reinterpret_cast<const QRgb *>(left.constScanLine(y));
        const auto *rightRow = reinterpret_cast<const QRgb *>(right.constScanLine(y));
        for (int x = 0; x < left.width(); ++x) {
            if (leftRow[x] == rightRow[x] || !differ(leftRow[x], rightRow[x]))
                continue;
            ++difference.pixels;
            difference.where |= QRect(x, y, 1, 1);
        }
    }
    return difference;
}
