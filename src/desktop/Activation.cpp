#include "desktop/Activation.h"

#include "desktop/StartupNotification.h"

namespace {

const QByteArray TimeMark = "_TIME";
constexpr auto TokenVariable = "XDG_ACTIVATION_TOKEN";

QByteArray unlessTooLong(const QByteArray &text)
{
    return text.size() <= Activation::LongestText ? text : QByteArray();
}

} // namespace

Activation Activation::ofEnvironment()
{
    return of(qgetenv(TokenVariable), qgetenv("DESKTOP_STARTUP_ID"));
}

Activation Activation::of(const QByteArray &token, const QByteArray &startupId)
{
    return {unlessTooLong(token), unlessTooLong(startupId)};
}

Activation Activation::atTime(quint32 time)
{
    return {{}, time == 0 ? QByteArray() : TimeMark + QByteArray::number(time)};
}

quint32 Activation::time() const
{
    const auto mark = startupId.lastIndexOf(TimeMark);
    return mark < 0 ? 0 : startupId.mid(mark + TimeMark.size()).toUInt();
}

void Activation::use() const
{
    // The Wayland platform takes the token from the environment when a window asks to be activated.
    if (!token.isEmpty())
        qputenv(TokenVariable, token);
    if (!startupId.isEmpty())
        useStartupId(startupId, time());
}
