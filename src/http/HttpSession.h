#pragma once

#include "http/HttpAnswer.h"
#include "http/HttpRequest.h"
#include "http/Origin.h"
#include "platform/Clock.h"

#include <QCoro/QCoroTask>
#include <QObject>
#include <QThread>

#include <stop_token>

class HttpCall;
class QNetworkAccessManager;

/// The road by which requests leave the program. All traffic, unpacking and storing runs on a thread of the session's
/// own; answers come back on the thread of the call.
///
/// - Sends a request once, whatever comes back, over HTTP/1.1, with no cookies, no cache, and no second try at a
///   challenge. Only what is `Purpose::Read` may be sent again, when a connection breaks before any answer.
/// - Follows at most ten redirects, never from https to http; a body goes to no other origin.
/// - Sends the identity's header to the identity's own origin and to no other, whatever an address or a redirect says.
/// - Trusts the system's authorities and uses the system's proxies.
/// - Two limits hold together: 30 seconds in which nothing goes out or comes in, and the request's own limit from its
///   start to the last byte, redirects included.
class HttpSession final : public QObject
{
    Q_OBJECT

public:
    /// The clock outlives the session.
    HttpSession(Identity identity, Clock &clock);
    /// Closes itself.
    ~HttpSession() override;

    /// The server's answer, whatever its status. Fails with `TransportError` when there is none that can be used, and
    /// with `Cancelled` once a stop is requested.
    QCoro::Task<HttpAnswer> send(HttpRequest request, std::stop_token stop = {});

    /// Ends what is under way with `Cancelled`, when events are next handled. What is sent from now on fails so too.
    void close();

Q_SIGNALS:
    void closing();

private:
    void start(HttpCall &call, HttpRequest request);

    Identity m_identity;
    Clock &m_clock;
    bool m_isClosed = false;
    QThread m_thread;
    /// Lives on the thread, and ends with it.
    QNetworkAccessManager *m_manager;
};
