#include "screens/kit/images/PictureProvider.h"

#include "screens/kit/images/ImageLoader.h"
#include "screens/kit/providers/Canvas.h"

#include <QPainterPath>

using namespace Qt::StringLiterals;

namespace {

QImage fitted(const QImage &picture, QSize room)
{
    const bool isLarger = picture.width() > room.width() || picture.height() > room.height();
    if (room.isEmpty() || !isLarger)
        return picture;
    return picture.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

} // namespace

QUrl pictureAddress(const QUrl &url, PictureShape shape)
{
    const QString encoded =
        QString::fromLatin1(QUrl::toPercentEncoding(url.toString(QUrl::FullyEncoded)));
    QUrl address;
    address.setScheme(u"image"_s);
    address.setHost(u"picture"_s);
    address.setPath(shape == PictureShape::Round ? u"/round"_s : u"/plain"_s);
    address.setQuery(u"u="_s + encoded);
    return address;
}

QImage roundPicture(const QImage &picture, int side)
{
    const QImage filling =
        picture.scaled(side, side, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    QImage disc(side, side, QImage::Format_ARGB32_Premultiplied);
    disc.fill(Qt::transparent);
    QPainter painter(&disc);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    QBrush brush(filling);
    brush.setTransform(
        QTransform::fromTranslate((side - filling.width()) / 2.0, (side - filling.height()) / 2.0));
    painter.setBrush(brush);
    painter.drawEllipse(QRectF(0, 0, side, side));
    return disc;
}

PictureProvider::PictureProvider() : QQuickImageProvider(Image) {}

QImage PictureProvider::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    const auto address = parsedAddress(id);
    const QImage picture = ImageLoader::shared().cached(QUrl(address.text(u"u"_s)));
    if (picture.isNull())
        return {};
    const bool isRound = address.path.value(0) == u"round"_s;
    const QImage shown = isRound ? roundPicture(picture, std::max(1, requestedSize.width()))
                                 : fitted(picture, requestedSize);
    if (size)
        *size = picture.size();
    return shown;
}
