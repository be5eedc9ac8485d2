#pragma once

#include "http/HttpRequest.h"
#include "http/TransportError.h"

#include <expected>

/// Where requests go on to when a server sends them elsewhere.
namespace Redirects {

/// The most redirects that one request follows.
inline constexpr int Most = 10;

/// True for an address that requests may go to: one of http or https, with a host.
bool isAddress(const QUrl &url);

/// True for an answer that sends a request to `location`, which may be relative.
bool isRedirect(int status, const QByteArray &location);

/// What to send next. 301 and 302 make a GET of a POST, 303 of everything, 307 and 308 change nothing. Fails when the
/// next address is no http, leaves https, or lies in another origin though a body would have to go there.
std::expected<HttpRequest, TransportError::Kind> next(const HttpRequest &request, int status,
                                                      const QByteArray &location);

} // namespace Redirects
