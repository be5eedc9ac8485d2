#include "screens/kit/providers/Canvas.h"

#include <cmath>

QString PictureAddress::text(const QString &key) const
{
    return query.queryItemValue(key, QUrl::FullyDecoded);
}

qreal PictureAddress::number(const QString &key) const
{
    return text(key).toDouble();
}

QColor PictureAddress::color(const QString &key) const
{
    return QColor(text(key));
}

PictureAddress parsedAddress(const QString &id)
{
    PictureAddress address;
    // Qt passes the address percent-encoded, except where decoding is unambiguous.
    for (const auto &part : id.section(u'?', 0, 0).split(u'/'))
        address.path.append(QUrl::fromPercentEncoding(part.toUtf8()));
    address.query = QUrlQuery(id.section(u'?', 1));
    return address;
}

QImage painted(qreal side, QSize requestedSize, QSize *size,
               const std::function<void(QPainter &, qreal)> &paint)
{
    const int pixels =
        requestedSize.width() > 0 ? requestedSize.width() : static_cast<int>(std::ceil(side));
    const qreal scale = pixels / side;
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    paint(painter, scale);
    painter.end();
    if (size)
        *size = image.size();
    return image;
}
