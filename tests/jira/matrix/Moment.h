#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>

/// Lets what a server has sent reach the client's thread before the clock is turned. So short a wait that nothing but the
/// sharpness of a test depends on it.
inline void letPartsArrive()
{
    const QDeadlineTimer moment(std::chrono::milliseconds(3));
    while (!moment.hasExpired())
        QCoreApplication::processEvents();
}
