#include "http/HttpCall.h"

HttpCall::HttpCall(Clock &clock, const HttpRequest::TimeLimits &limits, qint64 bodySize,
                   UploadObserver observer)
    : m_clock(clock),
      m_idleLimit(limits.idle),
      m_bodySize(bodySize),
      m_observer(std::move(observer))
{
    if (limits.whole)
        m_whole = timer(*limits.whole);
    restartIdleTime();
}

void HttpCall::follow(std::unique_ptr<HttpExchange> exchange)
{
    m_exchange.reset(exchange.release());
    connect(m_exchange.get(), &HttpExchange::progressed, this, &HttpCall::restartIdleTime);
    if (m_observer)
        connect(m_exchange.get(), &HttpExchange::sent, this, &HttpCall::noteSent);
    connect(m_exchange.get(), &HttpExchange::finished, this, &HttpCall::end);
}

void HttpCall::restartIdleTime()
{
    if (m_isOver)
        return;
    m_idle = timer(m_idleLimit);
}

void HttpCall::noteSent(qint64 bytes)
{
    if (m_isOver)
        return;
    // A copy, because the observer may cancel the request, which destroys this object.
    const UploadObserver observer = m_observer;
    observer({bytes, m_bodySize});
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
