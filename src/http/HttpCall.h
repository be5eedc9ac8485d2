#pragma once

#include "http/HttpExchange.h"
#include "model/UploadProgress.h"
#include "platform/Clock.h"

#include <QObject>
#include <QScopedPointer>

#include <coroutine>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>

/// One request from the point of view of the code that awaits it. It ends with the result of its exchange, at a time
/// limit, or when it is cancelled, whichever happens first. UI thread only.
class HttpCall final : public QObject
{
    Q_OBJECT

public:
    /// Starts the time limits, at which the call ends by itself. The clock must outlive the call.
    /// `observer` is told how much of the request's body of `bodySize` bytes was sent.
    HttpCall(Clock &clock, const HttpRequest::TimeLimits &limits, qint64 bodySize = 0,
             UploadObserver observer = {});

    /// Sets the exchange whose result this call waits for. The exchange must not have been started yet.
    void follow(std::unique_ptr<HttpExchange> exchange);
    /// Ends the call immediately with `Cancelled`.
    void cancel();
    /// Ends the exchange immediately, and the call with `Cancelled` in the next iteration of the event loop.
    void abandon();

    /// May be awaited once: returns the response, or throws the failure.
    auto answer(std::stop_token stop);

private:
    class Awaited;
    struct InItsThread
    {
        void operator()(HttpExchange *exchange) const { exchange->deleteLater(); }
    };

    void restartIdleTime();
    void noteSent(qint64 bytes);
    /// A timer that ends the call after the given time.
    Clock::TimerHandle timer(std::chrono::milliseconds limit);
    void end(HttpOutcome outcome);
    void resume();

    Clock &m_clock;
    const std::chrono::milliseconds m_idleLimit;
    const qint64 m_bodySize;
    const UploadObserver m_observer;
    std::unique_ptr<HttpExchange, InItsThread> m_exchange;
    Clock::TimerHandle m_idle;
    Clock::TimerHandle m_whole;
    std::coroutine_handle<> m_waiting;
    bool m_isOver = false;
    /// Absent if the call was cancelled.
    std::optional<HttpOutcome> m_outcome;
};

class HttpCall::Awaited
{
public:
    Awaited(HttpCall &call, std::stop_token stop) : m_call(call), m_stop(std::move(stop)) {}

    bool await_ready() const { return m_call.m_isOver || m_stop.stop_requested(); }
    void await_suspend(std::coroutine_handle<> waiting)
    {
        m_call.m_waiting = waiting;
        m_onStop.emplace(m_stop, [call = &m_call] { call->cancel(); });
    }
    HttpAnswer await_resume()
    {
        if (!m_call.m_outcome)
            throw Cancelled();
        if (!*m_call.m_outcome)
            throw TransportError(m_call.m_outcome->error());
        return std::move(**m_call.m_outcome);
    }

private:
    HttpCall &m_call;
    std::stop_token m_stop;
    std::optional<std::stop_callback<std::function<void()>>> m_onStop;
};

inline auto HttpCall::answer(std::stop_token stop)
{
    return Awaited(*this, std::move(stop));
}
