#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QStringList>
#include <QUrlQuery>

#include <functional>

/// The address of a requested picture: the parts of its path and the values of its query.
struct PictureAddress
{
    QStringList path;
    QUrlQuery query;

    QString text(const QString &key) const;
    /// A number in the query. 0 without the key.
    qreal number(const QString &key) const;
    /// A colour in the query, written as "#RRGGBB" or "#AARRGGBB". Invalid without the key.
    QColor color(const QString &key) const;
};

PictureAddress parsedAddress(const QString &id);

/// Paints a square of `side` logical pixels into an image of the requested size in device pixels (without a request,
/// one device pixel per logical pixel). The callback paints in logical pixels and receives the number of device pixels
/// per logical pixel.
QImage painted(qreal side, QSize requestedSize, QSize *size,
               const std::function<void(QPainter &, qreal)> &paint);
