#include "platform/linux/GLibCalls.h"

#include "model/Failure.h"

#include <coroutine>

/// The state of one call. It is owned by the waiting coroutine and, until GLib has called back, by GLib's callback.
struct GLibCalls::Call
{
    GLibPointer<GCancellable> cancellable{g_cancellable_new()};
    Clock::TimerHandle limit;
    GLibPointer<GAsyncResult> result;
    std::exception_ptr failure;
    std::coroutine_handle<> waiting;

    bool isOver() const { return result || failure; }
    void end()
    {
        limit.reset();
        if (const auto handle = std::exchange(waiting, nullptr))
            handle.resume();
    }
    /// Ends the call without waiting for GLib, which may never respond to a cancelled call.
    static void giveUp(std::shared_ptr<Call> call, std::exception_ptr failure)
    {
        if (call->isOver())
            return;
        call->failure = std::move(failure);
        g_cancellable_cancel(call->cancellable.get());
        call->end();
    }
};

class GLibCalls::Answer
{
public:
    explicit Answer(std::shared_ptr<Call> call) : m_call(std::move(call)) {}

    bool await_ready() const { return m_call->isOver(); }
    void await_suspend(std::coroutine_handle<> waiting) const { m_call->waiting = waiting; }
    GLibPointer<GAsyncResult> await_resume() const
    {
        if (m_call->failure)
            std::rethrow_exception(m_call->failure);
        return std::move(m_call->result);
    }

private:
    std::shared_ptr<Call> m_call;
};

QCoro::Task<GLibPointer<GAsyncResult>> GLibCalls::run(std::shared_ptr<GLibCalls> calls,
                                                      std::chrono::milliseconds limit, Start start)
{
    if (!calls->m_clock)
        throw Cancelled();
    const auto call = std::make_shared<Call>();
    calls->m_underWay.remove_if([](const auto &earlier) { return earlier.expired(); });
    calls->m_underWay.push_back(call);
    call->limit = calls->m_clock->after(limit, [weak = std::weak_ptr(call)] {
        if (const auto late = weak.lock())
            Call::giveUp(late, std::make_exception_ptr(TimedOut()));
    });
    // The callback owns this reference. GLib always calls it in the end, even after the call was given up.
    start(call->cancellable.get(), &GLibCalls::takeResult,
          std::make_unique<std::shared_ptr<Call>>(call).release());
    const Answer answer(call);
    co_return co_await answer;
}

void GLibCalls::takeResult(GObject *, GAsyncResult *result, gpointer data)
{
    const std::unique_ptr<std::shared_ptr<Call>> reference(
        static_cast<std::shared_ptr<Call> *>(data));
    const std::shared_ptr<Call> &call = *reference;
    if (call->isOver())
        return;
    call->result.reset(G_ASYNC_RESULT(g_object_ref(result)));
    call->end();
}

void GLibCalls::close()
{
    m_clock = nullptr;
    for (const auto &weak : std::exchange(m_underWay, {})) {
        if (const auto call = weak.lock())
            Call::giveUp(call, std::make_exception_ptr(Cancelled()));
    }
}
