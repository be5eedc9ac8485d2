#include "platform/Compositor.h"

#include <QGuiApplication>
#include <QScreen>
#include <qpa/qplatformnativeinterface.h>

using namespace Qt::StringLiterals;

bool composesWindows(QScreen *screen)
{
    if (QGuiApplication::platformName().startsWith("wayland"_L1))
        return true;
    auto *native = QGuiApplication::platformNativeInterface();
    // The X11 platform knows the owner of the selection _NET_WM_CM_S<n>. Other platforms return null.
    return native && screen && native->nativeResourceForScreen("compositingEnabled", screen);
}
