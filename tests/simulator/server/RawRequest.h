#pragma once

#include <QByteArray>
#include <QList>

#include <optional>
#include <utility>

/// A request exactly as a server received it.
struct RawRequest
{
    QByteArray method;
    /// The path and the query, percent-encoded.
    QByteArray target;
    /// With the names as they were spelled, in the order received.
    QList<std::pair<QByteArray, QByteArray>> headers;
    QByteArray body;
    /// The number of the connection that the request was received on; the first is 1.
    int connection = 0;

    /// The value of the first header with this name, ignoring case; null if there is none.
    QByteArray header(const QByteArray &name) const;
    /// The path, the query and the headers as they were received. Tests search them for leaked secrets.
    QByteArray head() const;

    bool operator==(const RawRequest &) const = default;
};

/// Removes a complete request, including its announced body, from the start of the received bytes. Nothing as long as
/// bytes are missing.
std::optional<RawRequest> takeRequest(QByteArray &arrived);
