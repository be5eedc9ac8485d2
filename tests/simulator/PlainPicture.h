#pragma once

#include <QByteArray>

/// A PNG image of one colour (0xRRGGBB; higher bits are ignored), made without Qt GUI.
QByteArray plainPicture(int width, int height, size_t colour);
