#pragma once

#include <QByteArray>

/// A PNG of one colour (0xRRGGBB; higher bits are ignored), without the library that windows draw with.
QByteArray plainPicture(int width, int height, size_t colour);
