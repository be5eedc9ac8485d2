#include "desktop/StartupNotification.h"

#include <QGuiApplication>
#include <QScreen>
#include <qpa/qplatformnativeinterface.h>

#include <bit>

namespace {

// The functions that Qt's X11 platform offers under these names; other platforms have none.
using SetTime = void (*)(QScreen *screen, quint32 time);
using SetStartupId = void (*)(const char *id);

/// Qt declares these functions with another type than they have.
template <typename Function, typename Declared>
Function actual(Declared function)
{
    return std::bit_cast<Function>(function);
}

void setTime(QPlatformNativeInterface &native, const QByteArray &function, quint32 time)
{
    QScreen *screen = QGuiApplication::primaryScreen();
    const auto set = actual<SetTime>(native.nativeResourceFunctionForScreen(function));
    if (set && screen)
        set(screen, time);
}

} // namespace

void useStartupId(const QByteArray &id, quint32 time)
{
    auto *native = QGuiApplication::platformNativeInterface();
    if (!native || time == 0)
        return;
    const auto set =
        actual<SetStartupId>(native->nativeResourceFunctionForIntegration("setstartupid"));
    if (set)
        set(id.constData());
    setTime(*native, "setapptime", time);
    setTime(*native, "setappusertime", time);
}
