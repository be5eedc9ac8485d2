#include "LongestStep.h"

#include <QThread>

#include <ctime>

namespace {

/// Time on the processor, so that other programs do not count.
qint64 threadNanoseconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return now.tv_sec * 1'000'000'000LL + now.tv_nsec;
}

} // namespace

bool LongestStep::notify(QObject *receiver, QEvent *event)
{
    if (thread() != QThread::currentThread())
        return QCoreApplication::notify(receiver, event);
    const qint64 start = threadNanoseconds();
    ++m_depth;
    const bool isHandled = QCoreApplication::notify(receiver, event);
    --m_depth;
    // An event within an event is part of the outer one.
    if (m_depth == 0)
        m_longest = std::max(m_longest, threadNanoseconds() - start);
    return isHandled;
}
