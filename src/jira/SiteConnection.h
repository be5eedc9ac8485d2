#pragma once

#include "async/OffThread.h"
#include "http/HttpSession.h"
#include "jira/JiraCredentials.h"
#include "jira/JiraRequest.h"
#include "jira/wire/WireDecoding.h"
#include "model/JiraError.h"

#include <QCoro/QCoroTask>

#include <memory>
#include <stop_token>

/// The data that all operations on a site share: its address and its HTTP session.
struct SiteConnection
{
    SiteConnection(const JiraCredentials &credentials, Clock &clock);

    QUrl site;
    HttpSession session;
};

using SiteConnectionPtr = std::shared_ptr<SiteConnection>;

/// Decodes the body of a 2xx response as a record; throws `JiraError::Decoding` if this fails.
template <typename DTO>
DTO decoded(const QByteArray &body)
{
    auto record = decodeWire<DTO>(body);
    if (!record)
        throw JiraError(std::move(record).error());
    return *std::move(record);
}

/// `read` sends a request that changes nothing, `write` one that changes data. Both return the body of a 2xx response.
/// They fail with `JiraError::Http` for any other status, with `JiraError::InvalidSite` if the site's address is
/// invalid, and with the failures of `exchange`.
QCoro::Task<QByteArray> read(SiteConnectionPtr connection, JiraRequest request,
                             std::stop_token stop);
QCoro::Task<QByteArray> write(SiteConnectionPtr connection, JiraRequest request,
                              std::stop_token stop);
/// Sends a request whose body or response is not JSON. Fails as `HttpSession::send` does, and with `JiraError::Http`
/// and status 401 if the site ignored the credentials and responded as to anybody. The observer is told how much of the
/// body was sent.
QCoro::Task<HttpAnswer> exchange(SiteConnectionPtr connection, HttpRequest request,
                                 std::stop_token stop, UploadObserver observer = {});

/// Decodes a body as a record and applies `mapping` to it. Both run on another thread.
template <typename DTO, typename Mapping>
QCoro::Task<std::invoke_result_t<Mapping, DTO>> mapped(QByteArray body, Mapping mapping,
                                                       std::stop_token stop)
{
    auto job = [body = std::move(body), mapping = std::move(mapping)] {
        return mapping(decoded<DTO>(body));
    };
    auto record = co_await offThread(std::move(job));
    if (stop.stop_requested())
        throw Cancelled();
    co_return record;
}

/// Sends a read request and maps the record in its response.
template <typename DTO, typename Mapping>
QCoro::Task<std::invoke_result_t<Mapping, DTO>>
readMapped(SiteConnectionPtr connection, JiraRequest request, Mapping mapping, std::stop_token stop)
{
    QByteArray body = co_await read(std::move(connection), std::move(request), stop);
    co_return co_await mapped<DTO>(std::move(body), std::move(mapping), std::move(stop));
}
