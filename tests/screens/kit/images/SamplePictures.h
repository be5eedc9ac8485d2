#pragma once

#include <QByteArray>
#include <QColor>
#include <QList>
#include <QSize>

/// Pictures as bytes, good and bad ones.
namespace SamplePictures {

QByteArray picture(const char *format, QSize size = {40, 30}, const QColor &color = Qt::red);
/// A PNG, BMP, GIF or ICO that claims another size than it has, all its checksums right.
QByteArray pngClaiming(QSize size);
QByteArray bmpClaiming(QSize size);
QByteArray gifClaiming(QSize size);
/// An icon that holds a PNG.
QByteArray iconHolding(const QByteArray &png);
/// A thousand pictures as nobody should make them, the same on each run: cut short, damaged, of enormous claims, one
/// inside another, of another type than they say, and no pictures at all.
QList<QByteArray> hostile();

} // namespace SamplePictures
