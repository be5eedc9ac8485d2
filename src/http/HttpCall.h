#pragma once

#include "http/HttpExchange.h"
#include "platform/Clock.h"

#include <QObject>
#include <QScopedPointer>

#include <coroutine>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>

/// One request seen from where it is awaited: ends with the outcome of its exchange, when its time is over, or when it
/// is called off, whichever comes first. UI thread only.
class HttpCall final : public QObject
{
    Q_OBJECT

public:
    /// Ends on time by itself; the clock outlives it.
    HttpCall(Clock &clock, const HttpRequest::TimeLimits &limits);

    /// The exchange whose outcome this call waits for. It has not been started.
    void follow(std::unique_ptr<HttpExchange> exchange);
    /// Ends it with `Cancelled`, at once.
    void cancel();
    /// Ends the exchange at once, and the call with `Cancelled` when events are next handled.
    void abandon();

    /// To be awaited once: the answer, or the failure as an exception.
    auto answer(std::stop_token stop);

private:
    class Awaited;
    struct InItsThread
    {
        void operator()(HttpExchange *exchange) const { exchange->deleteLater(); }
    };

    void restartIdleTime();
    /// Ends the call after that long.
    Clock::TimerHandle timer(std::chrono::milliseconds limit);
    void end(HttpOutcome outcome);
    void resume();

    Clock &m_clock;
    const std::chrono::milliseconds m_idleLimit;
    std::unique_ptr<HttpExchange, InItsThread> m_exchange;
    Clock::TimerHandle m_idle;
    Clock::TimerHandle m_whole;
    std::coroutine_handle<> m_waiting;
    bool m_isOver = false;
    /// Absent in a call that was called off.
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
