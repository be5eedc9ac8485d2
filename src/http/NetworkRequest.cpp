#include "http/NetworkRequest.h"

namespace {

void switchOffWhatTheStackDoesByItself(QNetworkRequest &request)
{
    using Request = QNetworkRequest;
    request.setAttribute(Request::Http2AllowedAttribute, false);
    request.setAttribute(Request::RedirectPolicyAttribute, Request::ManualRedirectPolicy);
    request.setAttribute(Request::CacheLoadControlAttribute, Request::AlwaysNetwork);
    request.setAttribute(Request::CacheSaveControlAttribute, false);
    request.setAttribute(Request::CookieLoadControlAttribute, Request::Manual);
    request.setAttribute(Request::CookieSaveControlAttribute, Request::Manual);
    request.setAttribute(Request::AuthenticationReuseAttribute, Request::Manual);
}

} // namespace

QNetworkRequest networkRequest(const HttpRequest &request, const Identity &identity)
{
    // A name in an address is no credential of ours; the stack would answer challenges with it.
    QNetworkRequest result(request.url.adjusted(QUrl::RemoveUserInfo));
    switchOffWhatTheStackDoesByItself(result);
    // The stack's own name is that of a browser, from which Jira wants proof that no other site sent the request.
    result.setRawHeader("User-Agent", "Velmora");
    // Asked for here, a packed body is handed on as it is, so that damage to it does not go unseen.
    result.setRawHeader("Accept-Encoding", request.saveAs ? "identity" : "gzip");
    for (const HttpHeader &header : request.headers)
        result.setRawHeader(header.name, header.value);
    if (!identity.authorization.isEmpty() && Origin::of(request.url) == identity.origin)
        result.setRawHeader("Authorization", identity.authorization);
    return result;
}

QByteArray mediaType(const QByteArray &contentType)
{
    const QByteArray type = contentType.split(';').first();
    return type.trimmed().toLower();
}
