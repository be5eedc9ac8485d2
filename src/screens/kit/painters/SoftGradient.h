#pragma once

#include <QColor>
#include <QLinearGradient>
#include <QRectF>

/// The soft gradient of one colour: from the colour with 16 % white at the top of the box to the plain colour at the
/// bottom. It is used for discs of people, badges of projects and swatches. Dots and status discs are flat.
QLinearGradient softGradient(const QColor &color, const QRectF &box);
