#include "http/Redirects.h"

#include "http/Origin.h"

using namespace Qt::StringLiterals;

namespace {

bool onlyReads(const QByteArray &verb)
{
    return verb == "GET" || verb == "HEAD";
}

bool becomesGet(const QByteArray &verb, int status)
{
    if (status == 303)
        return !onlyReads(verb);
    return (status == 301 || status == 302) && verb == "POST";
}

HttpRequest asGet(HttpRequest request)
{
    request.verb = "GET";
    request.body.reset();
    request.headers.removeIf([](const HttpHeader &header) {
        return header.name.compare("Content-Type", Qt::CaseInsensitive) == 0;
    });
    return request;
}

} // namespace

bool Redirects::isAddress(const QUrl &url)
{
    const QString scheme = url.scheme();
    return (scheme == "https"_L1 || scheme == "http"_L1) && !url.host().isEmpty();
}

bool Redirects::isRedirect(int status, const QByteArray &location)
{
    const bool sendsElsewhere = (status >= 301 && status <= 303) || status == 307 || status == 308;
    return sendsElsewhere && !location.isEmpty();
}

std::expected<HttpRequest, TransportError::Kind>
Redirects::next(const HttpRequest &request, int status, const QByteArray &location)
{
    using Kind = TransportError::Kind;
    if (request.purpose == HttpRequest::Purpose::Write)
        return std::unexpected(Kind::RedirectedWrite);
    HttpRequest next = becomesGet(request.verb, status) ? asGet(request) : request;
    next.url = request.url.resolved(QUrl::fromEncoded(location));
    next.url.setFragment(QString());
    if (request.url.scheme() == "https"_L1 && next.url.scheme() != "https"_L1)
        return std::unexpected(Kind::UnsafeRedirect);
    if (!isAddress(next.url))
        return std::unexpected(Kind::Broken);
    const bool mayChange = next.body || !onlyReads(next.verb);
    if (mayChange && Origin::of(next.url) != Origin::of(request.url))
        return std::unexpected(Kind::ForeignRedirect);
    return next;
}
