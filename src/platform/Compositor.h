#pragma once

class QScreen;

/// True if windows on this screen may have transparent areas, such as round corners and shadows. Without a compositor
/// X11 would show them as opaque. UI thread only.
bool composesWindows(QScreen *screen);
