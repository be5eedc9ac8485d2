#pragma once

#include <QByteArray>
#include <QList>

#include <optional>
#include <utility>

/// A request as a server received it, byte for byte.
struct RawRequest
{
    QByteArray method;
    /// Path and query, still encoded.
    QByteArray target;
    /// Names as they were spelled, in order of arrival.
    QList<std::pair<QByteArray, QByteArray>> headers;
    QByteArray body;
    /// The number of the connection that brought it; the first is 1.
    int connection = 0;

    /// The value of the first header of this name, whatever its case; null when there is none.
    QByteArray header(const QByteArray &name) const;
    /// Path, query and headers, as they were received: what a search for a leaked text has to look at.
    QByteArray head() const;

    bool operator==(const RawRequest &) const = default;
};

/// Takes a complete request, with a body of the length that it announces, off the front of what has arrived; nothing
/// as long as bytes are missing.
std::optional<RawRequest> takeRequest(QByteArray &arrived);
