#include "http/HttpCall.h"

HttpCall::HttpCall(Clock &clock, const HttpRequest::TimeLimits &limits)
    : m_clock(clock), m_idleLimit(limits.idle)
{
    if (limits.whole)
        m_whole = timer(*limits.whole);
    restartIdleTime();
}

void HttpCall::follow(std::unique_ptr<HttpExchange> exchange)
{
    m_exchange.reset(exchange.release());
    connect(m_exchange.get(), &HttpExchange::progressed, this, &HttpCall::restartIdleTime);
    connect(m_exchange.get(), &HttpExchange::finished, this, &HttpCall::end);
}

void HttpCall::restartIdleTime()
{
    if (m_isOver)
        return;
    m_idle = timer(m_idleLimit);
}

Clock::TimerHandle HttpCall::timer(std::chrono::milliseconds limit)
{
    return m_clock.after(limit, [this] { end(std::unexpected(TransportError::Kind::TimedOut)); });
}

void HttpCall::cancel()
{
    m_isOver = true;
    m_exchange.reset();
    resume();
}

void HttpCall::abandon()
{
    m_isOver = true;
    m_exchange.reset();
    QMetaObject::invokeMethod(this, &HttpCall::resume, Qt::QueuedConnection);
}

void HttpCall::end(HttpOutcome outcome)
{
    if (m_isOver)
        return;
    m_isOver = true;
    m_outcome = std::move(outcome);
    m_exchange.reset();
    resume();
}

void HttpCall::resume()
{
    m_idle.reset();
    m_whole.reset();
    // Resuming the coroutine destroys this object and its caller.
    if (const auto waiting = std::exchange(m_waiting, nullptr))
        waiting.resume();
}
