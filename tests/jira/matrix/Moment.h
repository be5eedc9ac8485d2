#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>

/// Lets data that a server has sent reach the client's thread before the clock is advanced. The wait is short: if it is
/// not sufficient, a test may miss an error, but it does not fail wrongly.
inline void letPartsArrive()
{
    const QDeadlineTimer moment(std::chrono::milliseconds(3));
    while (!moment.hasExpired())
        QCoreApplication::processEvents();
}
