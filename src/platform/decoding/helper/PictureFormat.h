#pragma once

#include <QByteArray>

/// The formats of pictures that are decoded.
enum class PictureFormat { None, Png, Jpeg, Gif, WebP, Svg };

/// The format of a picture by its first bytes; file names and declared types do not matter.
PictureFormat pictureFormatOf(const QByteArray &bytes);
/// The name of Qt's decoder for a format. SVG has none here, because it is drawn and not read.
QByteArray decoderOf(PictureFormat format);
/// Loads the decoders and everything that they load by themselves, which is not possible any more after the helper has
/// given up its rights.
void loadDecoders();
