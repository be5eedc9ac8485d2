#pragma once

#include "http/HttpAnswer.h"
#include "http/HttpRequest.h"
#include "http/Origin.h"
#include "model/UploadProgress.h"
#include "platform/Clock.h"

#include <QCoro/QCoroTask>
#include <QObject>
#include <QThread>

#include <stop_token>

class HttpCall;
class QNetworkAccessManager;

/// Sends all requests of the program to a site. Communication, decompression and storage run on a thread of the
/// session;
/// results are returned on the thread of the caller.
///
/// - Sends a request once, whatever happens to its connection and whatever the response is, over HTTP/1.1, without
///   cookies and without a cache. It does not respond to authentication challenges.
/// - Follows at most ten redirects of a read, never from https to http, and no redirect of a write. Sends a body to no
///   other origin.
/// - Sends the identity's `Authorization` header only to the identity's own origin, whatever an address or a redirect
///   says, and never to an address that contains a user name.
/// - Trusts the certificate authorities of the system and uses its proxies.
/// - Applies two time limits: 30 seconds without a byte sent or received, and the request's own limit from its start to
///   the last byte, redirects included.
class HttpSession final : public QObject
{
    Q_OBJECT

public:
    /// The clock must outlive the session.
    HttpSession(Identity identity, Clock &clock);
    /// Calls `close`.
    ~HttpSession() override;

    /// Returns the response of the server, whatever its status. Fails with `TransportError` if there is no usable
    /// response, and with `Cancelled` once a stop is requested. The observer is told how much of the body was sent; a
    /// redirect begins anew.
    QCoro::Task<HttpAnswer> send(HttpRequest request, std::stop_token stop = {},
                                 UploadObserver observer = {});

    /// Ends running requests with `Cancelled` in the next iteration of the event loop. Later calls of `send` fail in
    /// the same way.
    void close();

Q_SIGNALS:
    /// Emitted by `close`; ends the running calls.
    void closing();

private:
    void start(HttpCall &call, HttpRequest request);

    Identity m_identity;
    Clock &m_clock;
    bool m_isClosed = false;
    QThread m_thread;
    /// Belongs to the network thread and is deleted with it.
    QNetworkAccessManager *m_manager;
};
