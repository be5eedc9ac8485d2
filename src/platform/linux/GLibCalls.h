#pragma once

#include "platform/Clock.h"
#include "platform/linux/GLibPointers.h"

#include <QCoro/QCoroTask>

#include <functional>
#include <list>
#include <memory>

/// Runs asynchronous GLib calls as tasks on Qt's event loop, each with a time limit.
class GLibCalls
{
public:
    /// Thrown if GLib did not respond within the limit.
    struct TimedOut : std::exception
    {
    };
    /// Starts an asynchronous call; the last two arguments must be passed to GLib unchanged.
    using Start = std::function<void(GCancellable *, GAsyncReadyCallback, gpointer)>;

    explicit GLibCalls(Clock &clock) : m_clock(&clock) {}
    ~GLibCalls() { close(); }
    GLibCalls(const GLibCalls &) = delete;
    GLibCalls &operator=(const GLibCalls &) = delete;

    /// Starts a call and returns the result object for its `…_finish` function. A call that reaches its limit is
    /// cancelled and fails with `TimedOut`; once `calls` is closed, every call fails with `Cancelled`.
    static QCoro::Task<GLibPointer<GAsyncResult>> run(std::shared_ptr<GLibCalls> calls,
                                                      std::chrono::milliseconds limit, Start start);
    /// Ends all running and all later calls with `Cancelled`. The clock is no longer used after this.
    void close();

private:
    struct Call;
    class Answer;

    static void takeResult(GObject *source, GAsyncResult *result, gpointer data);

    Clock *m_clock;
    std::list<std::weak_ptr<Call>> m_underWay;
};
