#pragma once

#include "http/HttpRequest.h"
#include "http/Origin.h"

#include <QNetworkRequest>

/// The request in the network stack's terms, with all that the stack does by itself switched off: HTTP/2, redirects,
/// cookies, its cache, and answers to a challenge. `Authorization` goes along to the identity's own origin only.
QNetworkRequest networkRequest(const HttpRequest &request, const Identity &identity);

/// The media type of a header `Content-Type`, in lower case and without parameters.
QByteArray mediaType(const QByteArray &contentType);
