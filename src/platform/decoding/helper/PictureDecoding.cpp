#include "platform/decoding/helper/PictureDecoding.h"

#include "platform/decoding/helper/PictureFormat.h"

#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>

namespace {

/// A JPEG frame may declare this many times the pixels of others, because it is decoded at a fraction of its size.
constexpr qint64 JpegFactor = 3;
/// The length that the longer side of a drawing has at least.
constexpr int DrawingSide = 256;

qint64 areaOf(QSize size)
{
    return qint64(size.width()) * size.height();
}

ReadPicture problem(DecodingStatus status, QSize whole = {})
{
    return {.status = status, .image = {}, .whole = whole};
}

QImage scaledInto(const QImage &image, QSize bound)
{
    if (image.width() <= bound.width() && image.height() <= bound.height())
        return image;
    // A narrow picture keeps one pixel of its shorter side.
    const QSize size = image.size().scaled(bound, Qt::KeepAspectRatio).expandedTo({1, 1});
    return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QSize sizeOf(const QSvgRenderer &drawing)
{
    const QSize declared = drawing.defaultSize();
    return declared.isEmpty() ? drawing.viewBox().size() : declared;
}

ReadPicture drawn(const QByteArray &bytes, const PictureBounds &bounds)
{
    QSvgRenderer drawing;
    if (!drawing.load(bytes))
        return {};
    const QSize whole = sizeOf(drawing);
    if (whole.isEmpty())
        return {};
    if (areaOf(whole) > bounds.mostPixels)
        return problem(DecodingStatus::TooLarge, whole);
    const int side = std::max({DrawingSide, whole.width(), whole.height()});
    const QSize box = QSize(side, side).boundedTo(bounds.bound);
    QImage image(whole.scaled(box, Qt::KeepAspectRatio).expandedTo({1, 1}),
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawing.render(&painter);
    painter.end();
    return {.status = DecodingStatus::Done, .image = image, .whole = whole};
}

} // namespace

ReadPicture decodedPicture(const QByteArray &bytes, const PictureBounds &bounds)
{
    const PictureFormat format = pictureFormatOf(bytes);
    if (format == PictureFormat::None)
        return {};
    if (format == PictureFormat::Svg)
        return drawn(bytes, bounds);
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, decoderOf(format));
    reader.setAutoDetectImageFormat(false);
    reader.setAutoTransform(true);
    const QSize whole = reader.size();
    if (whole.isEmpty())
        return {};
    if (areaOf(whole) > bounds.mostPixels)
        return problem(DecodingStatus::TooLarge, whole);
    QImage image;
    // The reader keeps the decoded part of a truncated picture.
    if (!reader.read(&image))
        return {};
    return {.status = DecodingStatus::Done,
            .image = scaledInto(image, bounds.bound),
            .whole = image.size()};
}

FrameReader::FrameReader(const QByteArray &bytes, qint64 mostPixels)
    : m_bytes(bytes), m_decoder(decoderOf(pictureFormatOf(bytes))), m_mostPixels(mostPixels)
{
    m_buffer.setBuffer(&m_bytes);
    m_buffer.open(QIODevice::ReadOnly);
}

void FrameReader::open()
{
    m_buffer.seek(0);
    m_next = 0;
    m_reader = std::make_unique<QImageReader>(&m_buffer, m_decoder);
    m_reader->setAutoDetectImageFormat(false);
    m_reader->setAutoTransform(true);
    m_facts = facts();
}

ReadPicture FrameReader::facts()
{
    QSize whole = m_reader->size();
    if (whole.isEmpty())
        return {};
    const bool isJpeg = m_decoder == "jpeg";
    if (areaOf(whole) > (isJpeg ? JpegFactor * m_mostPixels : m_mostPixels))
        return problem(DecodingStatus::TooLarge, whole);
    QSize decoded = whole;
    while (isJpeg && areaOf(decoded) > m_mostPixels)
        decoded /= 2;
    if (decoded != whole)
        m_reader->setScaledSize(decoded);
    if (m_reader->transformation() & QImageIOHandler::TransformationRotate90)
        whole.transpose();
    return {.status = DecodingStatus::Done,
            .image = {},
            .whole = whole,
            .isAnimated = m_reader->supportsAnimation() && m_reader->imageCount() != 1};
}

ReadPicture FrameReader::next()
{
    if (m_facts.status != DecodingStatus::Done)
        return m_facts;
    if (m_next > 0 && !m_facts.isAnimated)
        return problem(DecodingStatus::End);
    ReadPicture picture = m_facts;
    // The reader keeps the decoded part of a truncated picture, which is worth showing if it is all there is.
    const bool isWhole = m_reader->read(&picture.image);
    if (picture.image.isNull() || (!isWhole && picture.isAnimated))
        return problem(m_next > 0 ? DecodingStatus::End : DecodingStatus::Unreadable,
                       picture.whole);
    // A frame can have another size than the file declares.
    if (areaOf(picture.image.size()) > m_mostPixels)
        return problem(DecodingStatus::TooLarge, picture.image.size());
    ++m_next;
    picture.delay = picture.isAnimated ? std::max(0, m_reader->nextImageDelay()) : 0;
    return picture;
}

ReadPicture FrameReader::frame(int index)
{
    if (m_decoder.isEmpty())
        return {};
    if (!m_reader || index < m_next)
        open();
    while (m_next < index) {
        const ReadPicture skipped = next();
        if (skipped.status != DecodingStatus::Done)
            return skipped;
    }
    return next();
}
