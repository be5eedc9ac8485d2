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

/// What all operations on a site share: its address, and the road to it.
struct SiteConnection
{
    SiteConnection(const JiraCredentials &credentials, Clock &clock);

    QUrl site;
    HttpSession session;
};

using SiteConnectionPtr = std::shared_ptr<SiteConnection>;

/// The record that the body of a 2xx answer spells; throws `JiraError::Decoding` when it spells none.
template <typename DTO>
DTO decoded(const QByteArray &body)
{
    auto record = decodeWire<DTO>(body);
    if (!record)
        throw JiraError(std::move(record).error());
    return *std::move(record);
}

/// Sends a request that changes nothing, or one that does, and gives the body of its 2xx answer. Fails with
/// `JiraError::Http` for any other status, `JiraError::InvalidSite` when the site makes no address, and as
/// `HttpSession::send` does.
QCoro::Task<QByteArray> read(SiteConnectionPtr connection, JiraRequest request,
                             std::stop_token stop);
QCoro::Task<QByteArray> write(SiteConnectionPtr connection, JiraRequest request,
                              std::stop_token stop);
/// The same for a request that is not one of JSON.
QCoro::Task<HttpAnswer> exchange(SiteConnectionPtr connection, HttpRequest request,
                                 std::stop_token stop);

/// What `mapping` makes of the record in a body. Decoding and mapping run on another thread.
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

/// Reads a record and maps it.
template <typename DTO, typename Mapping>
QCoro::Task<std::invoke_result_t<Mapping, DTO>>
readMapped(SiteConnectionPtr connection, JiraRequest request, Mapping mapping, std::stop_token stop)
{
    QByteArray body = co_await read(std::move(connection), std::move(request), stop);
    co_return co_await mapped<DTO>(std::move(body), std::move(mapping), std::move(stop));
}
