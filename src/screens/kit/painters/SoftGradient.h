#pragma once

#include <QColor>
#include <QLinearGradient>
#include <QRectF>

/// The soft gradient of one colour: from the colour with 16 % white at the top of the box to the colour itself at the
/// bottom. Discs of people, badges of projects and swatches have it; dots and status discs are flat.
QLinearGradient softGradient(const QColor &color, const QRectF &box);
