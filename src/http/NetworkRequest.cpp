#include "http/NetworkRequest.h"

namespace {

/// How long a connection without requests is kept. A server or a router that drops an idle connection may do so
/// unnoticed, and then the next request on it fails, because it is not sent again. They wait longer than this.
constexpr int KeptOpenSeconds = 5;

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
    request.setAttribute(Request::ConnectionCacheExpiryTimeoutSecondsAttribute, KeptOpenSeconds);
}

} // namespace

QNetworkRequest networkRequest(const HttpRequest &request, const Identity &identity)
{
    // A user name in an address is not used as a credential; otherwise the stack would answer authentication challenges
    // with it.
    QNetworkRequest result(request.url.adjusted(QUrl::RemoveUserInfo));
    switchOffWhatTheStackDoesByItself(result);
    // The stack's default value is that of a browser, for which Jira requires proof against cross-site requests.
    result.setRawHeader("User-Agent", "Velmora");
    // If the program sets this header itself, the stack does not decompress the body, so that damaged data are detected
    // here.
    result.setRawHeader("Accept-Encoding", request.saveAs ? "identity" : "gzip");
    for (const HttpHeader &header : request.headers)
        result.setRawHeader(header.name, header.value);
    // An address with a user name was not meant for these credentials: somebody typed an e-mail instead of a site.
    const bool isFor =
        request.url.userInfo().isEmpty() && Origin::of(request.url) == identity.origin;
    if (isFor && !identity.authorization.isEmpty())
        result.setRawHeader("Authorization", identity.authorization);
    return result;
}

QByteArray mediaType(const QByteArray &contentType)
{
    const QByteArray type = contentType.split(';').first();
    return type.trimmed().toLower();
}
