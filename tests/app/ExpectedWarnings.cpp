#include "app/ExpectedWarnings.h"

using namespace Qt::StringLiterals;

namespace {

/// Warnings of Qt's offscreen platform, which supports neither status items nor raising a window, and has no window
/// manager that could be told the minimum size.
bool isAboutThePlatform(const QString &message)
{
    return message.contains(u"systemTrayWindowChanged"_s) ||
           message.contains(u"propagateSizeHints"_s) ||
           message == u"This plugin does not support raise()"_s;
}

/// When the last animation has ended, Qt stops its animation driver in a later event. A `Timer` of QML that starts before
/// that event counts as a paused animation, for which Qt stops the driver at once, and then the event finds it stopped.
/// Qt warns and goes on as it should. The program cannot avoid it: it is free to start a `Timer` at any time.
bool isAboutTheDriver(const QString &message)
{
    return message == u"QUnifiedTimer::stopAnimationDriver: driver is not running"_s;
}

} // namespace

bool isExpectedWarning(const QString &message)
{
    return isAboutThePlatform(message) || isAboutTheDriver(message);
}
