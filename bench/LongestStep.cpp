#include "LongestStep.h"

#include <QThread>

#include <ctime>

namespace {

/// The processor time of this thread, which excludes the work of other programs.
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
    // The time of a nested event is part of the outer event.
    if (m_depth == 0)
        m_longest = std::max(m_longest, threadNanoseconds() - start);
    return isHandled;
}
