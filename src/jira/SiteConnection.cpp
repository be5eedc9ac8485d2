#include "jira/SiteConnection.h"

#include "jira/ErrorMessage.h"

namespace {

HttpRequest httpRequest(const JiraRequest &request, const QUrl &site, HttpRequest::Purpose purpose)
{
    const auto url = request.url(site);
    if (!url)
        throw JiraError(JiraError::InvalidSite());
    HttpRequest result{.verb = verb(request.method),
                       .url = *url,
                       .purpose = purpose,
                       .headers = {{"Accept", "application/json"}},
                       .body = request.body,
                       .saveAs = {}};
    if (request.body)
        result.headers.append(HttpHeader{"Content-Type", "application/json"});
    return result;
}

constexpr int Unauthorized = 401;

/// True if the site did not accept the credentials and responded as to anybody, with whatever anybody may see. Many
/// operations may be requested anonymously, so an expired token gives empty lists and status 200.
bool isForAnybody(const HttpAnswer &answer)
{
    const QByteArray reason = answer.header("X-Seraph-LoginReason");
    return reason.contains("AUTHENTICATED_FAILED") || reason.contains("AUTHENTICATION_DENIED") ||
           answer.header("X-AUSERNAME") == "anonymous";
}

QCoro::Task<QByteArray> bodyOf(SiteConnectionPtr connection, JiraRequest request,
                               HttpRequest::Purpose purpose, std::stop_token stop)
{
    HttpRequest outgoing = httpRequest(request, connection->site, purpose);
    const HttpAnswer answer =
        co_await exchange(std::move(connection), std::move(outgoing), std::move(stop));
    if (answer.isSuccess())
        co_return answer.body;
    auto reading = [body = answer.body] { return errorMessage(body); };
    const QString message = co_await offThread(std::move(reading));
    throw JiraError(JiraError::Http{answer.status, message});
}

} // namespace

SiteConnection::SiteConnection(const JiraCredentials &credentials, Clock &clock)
    : site(credentials.site),
      session({Origin::of(credentials.site), credentials.authorizationHeader()}, clock)
{
}

QCoro::Task<QByteArray> read(SiteConnectionPtr connection, JiraRequest request,
                             std::stop_token stop)
{
    return bodyOf(std::move(connection), std::move(request), HttpRequest::Purpose::Read,
                  std::move(stop));
}

QCoro::Task<QByteArray> write(SiteConnectionPtr connection, JiraRequest request,
                              std::stop_token stop)
{
    return bodyOf(std::move(connection), std::move(request), HttpRequest::Purpose::Write,
                  std::move(stop));
}

QCoro::Task<HttpAnswer> exchange(SiteConnectionPtr connection, HttpRequest request,
                                 std::stop_token stop, UploadObserver observer)
{
    // The coroutine keeps the connection alive while the request runs.
    HttpAnswer answer =
        co_await connection->session.send(std::move(request), std::move(stop), std::move(observer));
    if (answer.isSuccess() && isForAnybody(answer))
        throw JiraError(JiraError::Http{Unauthorized, {}});
    co_return answer;
}
