#pragma once

#include <QCoreApplication>
#include <QThread>

#include <algorithm>
#include <ctime>
#include <utility>

/// An application, such as `QCoreApplication`, that records the longest time its thread has spent on one event.
template <typename Application>
class LongestStep final : public Application
{
public:
    using Application::Application;

    bool notify(QObject *receiver, QEvent *event) override
    {
        if (this->thread() != QThread::currentThread())
            return Application::notify(receiver, event);
        const qint64 start = threadNanoseconds();
        ++m_depth;
        const bool isHandled = Application::notify(receiver, event);
        --m_depth;
        // The time of a nested event is part of the outer event.
        if (m_depth == 0)
            m_longest = std::max(m_longest, threadNanoseconds() - start);
        return isHandled;
    }
    /// The longest time since the previous call, in nanoseconds of processor time.
    qint64 take() { return std::exchange(m_longest, 0); }

private:
    /// The processor time of this thread, which excludes the work of other programs.
    static qint64 threadNanoseconds()
    {
        timespec now{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
        return now.tv_sec * 1'000'000'000LL + now.tv_nsec;
    }

    qint64 m_longest = 0;
    int m_depth = 0;
};
