#pragma once

#include <QColor>
#include <QString>

/// The made-up screenshots that are attached to issues of the demo.
namespace DemoPicture {

/// Draws a window with a title bar, a banner and four cards, in 1200 by 760 pixels, and writes it as a PNG file. An
/// existing file is kept. If the file cannot be written, there is none afterwards. The same accent always gives the same
/// file. May be called on any thread.
void write(const QString &path, const QColor &accent);

} // namespace DemoPicture
