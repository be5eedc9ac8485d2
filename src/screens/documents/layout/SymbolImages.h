#pragma once

#include <QColor>
#include <QImage>
#include <QString>

/// The picture of a symbol of the kit, which is drawn once for each name, colour, side in logical pixels, and scale.
/// Called while the GUI thread paints or is blocked.
const QImage &symbolImage(const QString &name, const QColor &color, double side, double scale);
