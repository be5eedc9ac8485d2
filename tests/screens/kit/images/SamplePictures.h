#pragma once

#include <QByteArray>
#include <QColor>
#include <QList>
#include <QSize>

/// Encoded pictures, both valid and invalid.
namespace SamplePictures {

QByteArray picture(const char *format, QSize size = {40, 30}, const QColor &color = Qt::red);
/// A PNG, BMP or GIF whose header states a wrong size, with correct checksums.
QByteArray pngClaiming(QSize size);
QByteArray bmpClaiming(QSize size);
QByteArray gifClaiming(QSize size);
/// An ICO file that contains a PNG.
QByteArray iconHolding(const QByteArray &png);
/// A thousand invalid pictures, the same in each run: truncated, damaged, with huge stated sizes, nested in each other,
/// of another type than stated, or not pictures at all.
QList<QByteArray> hostile();

} // namespace SamplePictures
