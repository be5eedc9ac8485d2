#include "support/RunUntil.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

bool runUntil(const std::function<bool()> &condition)
{
    const QDeadlineTimer deadline(std::chrono::minutes(1));
    // Wakes the event loop regularly, even if there are no events.
    QTimer wake;
    wake.start(std::chrono::milliseconds(20));
    while (!condition() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return condition();
}
