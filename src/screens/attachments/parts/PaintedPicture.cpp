#include "screens/attachments/parts/PaintedPicture.h"

#include "screens/kit/images/ImageLoader.h"

#include <QPainter>
#include <QPainterPath>

PaintedPicture::PaintedPicture(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    connect(this, &PaintedPicture::lookChanged, this, [this] { update(); });
}

void PaintedPicture::setAddress(const QUrl &address)
{
    const QImage picture = address.isEmpty() ? QImage() : ImageLoader::shared().cached(address);
    if (m_address == address && m_picture.cacheKey() == picture.cacheKey())
        return;
    m_address = address;
    m_picture = picture;
    m_scaled = {};
    Q_EMIT addressChanged();
    update();
}

QRectF PaintedPicture::placeOfPicture() const
{
    const auto mode = m_crops ? Qt::KeepAspectRatioByExpanding : Qt::KeepAspectRatio;
    QRectF place({}, QSizeF(m_picture.size()).scaled(size(), mode));
    place.moveCenter(boundingRect().center());
    return place;
}

void PaintedPicture::paint(QPainter *painter)
{
    if (m_picture.isNull() || width() <= 0 || height() <= 0)
        return;
    const QRectF place = placeOfPicture();
    const qreal density = painter->device()->devicePixelRatioF() * painter->transform().m11();
    const QSize pixels = (place.size() * density).toSize().expandedTo({1, 1});
    // The painter interpolates between four pixels only, which drops details of a picture that is much larger.
    const bool isSmaller = pixels.width() < m_picture.width();
    if (isSmaller && m_scaled.size() != pixels)
        m_scaled = m_picture.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const QImage &image = isSmaller ? m_scaled : m_picture;

    QBrush brush(image);
    QTransform toPlace = QTransform::fromTranslate(place.x(), place.y());
    toPlace.scale(place.width() / image.width(), place.height() / image.height());
    brush.setTransform(toPlace);
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter->setPen(Qt::NoPen);
    painter->setBrush(brush);
    painter->setClipRect(boundingRect());
    QRectF shape = place & boundingRect();
    if (m_hasSquareFoot)
        shape.setBottom(shape.bottom() + m_corner);
    painter->drawRoundedRect(shape, m_corner, m_corner);
}
