#pragma once

#include <QRect>
#include <QSize>

/// Where the window of a preview opens: in the middle of the window that opens it, as far as the screen allows, and no
/// larger than the screen. All rectangles are in the coordinates of the desktop.
QRect previewPlace(QSize wanted, const QRect &window, const QRect &screen);
