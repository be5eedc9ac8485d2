#pragma once

#include <QByteArray>

/// Tells the X11 platform the id and the time of the press that asks for the next window. Window managers let a window take
/// the focus only if the press is newer than the last one in other windows. Has no effect on other platforms, and for the
/// time 0.
void useStartupId(const QByteArray &id, quint32 time);
