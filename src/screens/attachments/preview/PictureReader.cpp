#include "screens/attachments/preview/PictureReader.h"

#include <QFileInfo>
#include <QLocale>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

/// Formats that need an interpreter (SVG, PDF) are not decoded.
constexpr std::array Formats{"png", "jpeg", "jpg", "gif", "bmp", "ico", "webp"};

/// The smallest side of a level.
constexpr int SmallestSide = 256;
/// Frames with less are shown for `UsualDelay`, as in browsers, because such animations were made for slow machines.
constexpr std::chrono::milliseconds ShortestDelay(20);
constexpr std::chrono::milliseconds UsualDelay(100);

bool isKnown(const QByteArray &format)
{
    return std::ranges::any_of(Formats, [&](const char *known) { return format == known; });
}

bool isJpeg(const QByteArray &format)
{
    return format == "jpeg" || format == "jpg";
}

qint64 pixelsOf(QSize size)
{
    return qint64(size.width()) * size.height();
}

QList<QImage> levelsOf(QImage image)
{
    QList<QImage> levels{image};
    while (std::min(image.width(), image.height()) >= 2 * SmallestSide) {
        image = image.scaled(image.size() / 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        levels += image;
    }
    return levels;
}

} // namespace

QString tooLargePictureText(QSize size)
{
    const QLocale french(QLocale::French, QLocale::France);
    return u"Cette image est trop grande pour être affichée (%1 × %2 pixels)."_s.arg(
        french.toString(size.width()), french.toString(size.height()));
}

PictureReader::PictureReader(QString path) : m_path(std::move(path)) {}

void PictureReader::open()
{
    m_reader = std::make_unique<QImageReader>(m_path);
    m_reader->setDecideFormatFromContent(true);
    m_reader->setAutoTransform(true);
    QSize size = m_reader->size();
    if (isJpeg(m_reader->format())) {
        while (pixelsOf(size) > MaximumPixels)
            size /= 2;
        if (size != m_reader->size())
            m_reader->setScaledSize(size);
    }
}

QString PictureReader::problem()
{
    if (!QFileInfo(m_path).isFile())
        return u"Le fichier n'est plus là."_s;
    open();
    const QByteArray format = m_reader->format();
    m_size = m_reader->size();
    if (!isKnown(format) || m_size.isEmpty())
        return u"Cette image est endommagée ou d'un format inconnu."_s;
    if (pixelsOf(m_size) > (isJpeg(format) ? MaximumJpegPixels : MaximumPixels))
        return tooLargePictureText(m_size);
    if (m_reader->transformation() & QImageIOHandler::TransformationRotate90)
        m_size.transpose();
    // The number of images is that of the sizes in an icon, which is no animation.
    m_isAnimated = m_reader->supportsAnimation() && m_reader->imageCount() != 1;
    return {};
}

PictureFrame PictureReader::read()
{
    QImage image;
    // The reader keeps the decoded part of a truncated picture, which is worth showing if it is all there is.
    const bool isWhole = m_reader->read(&image);
    if (image.isNull() || (!isWhole && m_isAnimated))
        return {};
    std::chrono::milliseconds delay(m_isAnimated ? m_reader->nextImageDelay() : 0);
    if (m_isAnimated && delay < ShortestDelay)
        delay = UsualDelay;
    return {levelsOf(image), delay};
}

PictureFrame PictureReader::next()
{
    if (!m_reader)
        open();
    PictureFrame frame = read();
    if (!frame.isNull() || !m_isAnimated)
        return frame;
    open();
    return read();
}
