#pragma once

#include "http/HttpRequest.h"
#include "http/TransportError.h"

#include <expected>

/// The rules for following redirects.
namespace Redirects {

/// The maximum number of redirects that one request follows.
inline constexpr int Most = 10;

/// True for an address that requests may be sent to: http or https, with a host.
bool isAddress(const QUrl &url);

/// True if a response with this status and this `Location` header, which may be relative, is a redirect.
bool isRedirect(int status, const QByteArray &location);

/// The request to send after a redirect. 301 and 302 change POST to GET, 303 changes every method to GET, 307 and 308
/// change nothing. Fails for a request that changes data, because the page behind the redirect, for example one for
/// signing in, would look like a success. Fails also if the new address is neither http nor https, if it leads from
/// https to http, or if a body or a method other than GET and HEAD would be sent to another origin.
std::expected<HttpRequest, TransportError::Kind> next(const HttpRequest &request, int status,
                                                      const QByteArray &location);

} // namespace Redirects
