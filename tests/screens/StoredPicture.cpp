#include "screens/StoredPicture.h"

#include "screens/gallery/PictureDifference.h"
#include "support/TestFiles.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

bool isWriting()
{
    return QGuiApplication::arguments().contains(u"--write"_s);
}

/// Reduces the shades to fewer than the comparison distinguishes, which halves the size on disk.
QImage coarse(QImage picture)
{
    constexpr int step = 4;
    const auto rounded = [](int value) { return std::min(255, (value + step / 2) / step * step); };
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb pixel = picture.pixel(x, y);
            picture.setPixel(
                x, y, qRgb(rounded(qRed(pixel)), rounded(qGreen(pixel)), rounded(qBlue(pixel))));
        }
    }
    return picture;
}

std::string placeOf(const PictureDifference &difference)
{
    const QRect box = difference.where;
    return u"%1 pixels within %2, %3, %4 x %5"_s.arg(difference.pixels)
        .arg(box.x())
        .arg(box.y())
        .arg(box.width())
        .arg(box.height())
        .toStdString();
}

} // namespace

StoredPicture::StoredPicture(const QString &name, bool dark)
    : m_file(QDir(projectFile(u"tests/screens/pictures"_s))
                 .filePath(u"%1-%2@%3x.png"_s.arg(name, dark ? u"dark"_s : u"light"_s)
                               .arg(qRound(qGuiApp->devicePixelRatio()))))
{
}

std::string StoredPicture::differenceTo(const QImage &drawn) const
{
    if (isWriting())
        return coarse(drawn).save(m_file, "png", 0) ? "" : "cannot be stored";
    const auto difference = pictureDifference(drawn, image());
    if (difference.isForgiven())
        return {};
    const QString found = QDir::temp().filePath(u"found-"_s + QFileInfo(m_file).fileName());
    drawn.save(found);
    return placeOf(difference) + "; found: " + found.toStdString();
}
