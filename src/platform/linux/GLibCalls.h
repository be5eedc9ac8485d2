#pragma once

#include "platform/Clock.h"
#include "platform/linux/GLibPointers.h"

#include <QCoro/QCoroTask>

#include <functional>
#include <list>
#include <memory>

/// Asynchronous calls of GLib as tasks, each with a limit, on Qt's own event loop.
class GLibCalls
{
public:
    /// What a call ends with that was not answered within its limit.
    struct TimedOut : std::exception
    {
    };
    /// Begins a call; the last two arguments go to GLib as they are.
    using Start = std::function<void(GCancellable *, GAsyncReadyCallback, gpointer)>;

    explicit GLibCalls(Clock &clock) : m_clock(&clock) {}
    ~GLibCalls() { close(); }
    GLibCalls(const GLibCalls &) = delete;
    GLibCalls &operator=(const GLibCalls &) = delete;

    /// Begins a call and gives what its `…_finish` takes. A call that hits its limit is called off; so is every call
    /// once `calls` is closed, with `Cancelled`.
    static QCoro::Task<GLibPointer<GAsyncResult>> run(std::shared_ptr<GLibCalls> calls,
                                                      std::chrono::milliseconds limit, Start start);
    /// Ends what is under way and all that comes after; the clock is not touched any more.
    void close();

private:
    struct Call;
    class Answer;

    static void takeResult(GObject *source, GAsyncResult *result, gpointer data);

    Clock *m_clock;
    std::list<std::weak_ptr<Call>> m_underWay;
};
