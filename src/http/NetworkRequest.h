#pragma once

#include "http/HttpRequest.h"
#include "http/Origin.h"

#include <QNetworkRequest>

/// Converts the request for Qt's network stack and turns the automatic features of the stack off: HTTP/2, redirects,
/// cookies, the cache, and responses to authentication challenges. `Authorization` is sent only to the identity's own
/// origin.
QNetworkRequest networkRequest(const HttpRequest &request, const Identity &identity);

/// The media type of a `Content-Type` header, in lower case and without parameters.
QByteArray mediaType(const QByteArray &contentType);
