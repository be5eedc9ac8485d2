#include "http/HttpSession.h"

#include "http/HttpCall.h"
#include "http/SystemProxies.h"

HttpSession::HttpSession(Identity identity, Clock &clock)
    : m_identity(std::move(identity)), m_clock(clock)
{
    auto manager = std::make_unique<QNetworkAccessManager>();
    manager->setProxyFactory(std::make_unique<SystemProxies>().release());
    manager->moveToThread(&m_thread);
    m_manager = manager.release();
    connect(&m_thread, &QThread::finished, m_manager, &QObject::deleteLater);
    m_thread.setObjectName(QStringLiteral("http"));
    m_thread.start();
}

HttpSession::~HttpSession()
{
    close();
    m_thread.quit();
    m_thread.wait();
}

void HttpSession::close()
{
    m_isClosed = true;
    Q_EMIT closing();
}

QCoro::Task<HttpAnswer> HttpSession::send(HttpRequest request, std::stop_token stop,
                                          UploadObserver observer)
{
    if (m_isClosed || stop.stop_requested())
        throw Cancelled();
    const qint64 bodySize = request.body.value_or(QByteArray()).size();
    const auto call =
        std::make_unique<HttpCall>(m_clock, request.limits, bodySize, std::move(observer));
    start(*call, std::move(request));
    // The session may have been destroyed when this returns.
    co_return co_await call->answer(std::move(stop));
}

void HttpSession::start(HttpCall &call, HttpRequest request)
{
    connect(this, &HttpSession::closing, &call, &HttpCall::abandon);
    auto exchange = std::make_unique<HttpExchange>(std::move(request), m_identity);
    exchange->moveToThread(&m_thread);
    HttpExchange *const started = exchange.get();
    call.follow(std::move(exchange));
    QMetaObject::invokeMethod(
        started, [started, manager = m_manager] { started->start(*manager); },
        Qt::QueuedConnection);
}
