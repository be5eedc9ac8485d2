#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QStringList>
#include <QUrlQuery>

#include <functional>

/// What an image provider is asked for: the parts of the path and the values of the query.
struct PictureAddress
{
    QStringList path;
    QUrlQuery query;

    QString text(const QString &key) const;
    /// 0 without the key.
    qreal number(const QString &key) const;
    /// Invalid without the key. The text is "#RRGGBB" or "#AARRGGBB".
    QColor color(const QString &key) const;
};

PictureAddress parsedAddress(const QString &id);

/// Paints a square of `side` logical pixels into an image of the size in device pixels that was requested (one per
/// logical pixel without a request). The callback paints in logical pixels and gets the number of device pixels per
/// logical one.
QImage painted(qreal side, QSize requestedSize, QSize *size,
               const std::function<void(QPainter &, qreal)> &paint);
