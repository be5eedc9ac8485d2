#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUrl>

#include <chrono>
#include <optional>

/// One header field of a request.
struct HttpHeader
{
    QByteArray name;
    QByteArray value;

    bool operator==(const HttpHeader &) const = default;
};

/// One request as it is sent.
struct HttpRequest
{
    /// The effect of the request on the server.
    enum class Purpose {
        /// Changes nothing. It shares connections that are kept open for a short time.
        Read,
        /// Changes data. It uses a connection of its own and follows no redirect. If the connection breaks before the
        /// response, it is unknown whether the change was made.
        Write
    };

    /// The time limits of a request. The defaults are those of a JSON request.
    struct TimeLimits
    {
        /// The longest time in which no byte is sent or received, including the wait for the response.
        std::chrono::milliseconds idle = std::chrono::seconds(30);
        /// The longest time from the start of the request to the last byte of its response; absent for transfers of any
        /// duration.
        std::optional<std::chrono::milliseconds> whole = std::chrono::seconds(60);

        bool operator==(const TimeLimits &) const = default;
    };
    /// The limits for the transfer of a file with this size. A server may process an uploaded file for a long time, and
    /// a slow connection is not an error, unless it is slower than `SlowestTransfer` on average.
    static constexpr TimeLimits transferLimits(qint64 bytes)
    {
        return {std::chrono::seconds(300), std::chrono::seconds(600 + bytes / SlowestTransfer)};
    }
    /// In bytes per second.
    static constexpr qint64 SlowestTransfer = 4096;
    /// The default maximum size in bytes of a response kept in memory, after decompression. About ten times the size of
    /// a page of a hundred issues with long histories.
    static constexpr qint64 MaximumInMemory = 64LL * 1024 * 1024;

    QByteArray verb = "GET";
    QUrl url;
    Purpose purpose = Purpose::Read;
    /// The header fields, in addition to those that every request has: `Authorization`, `User-Agent` and
    /// `Accept-Encoding`.
    QList<HttpHeader> headers;
    std::optional<QByteArray> body;
    TimeLimits limits = {};
    /// The maximum size in bytes of a response kept in memory, after decompression.
    qint64 mostInMemory = MaximumInMemory;
    /// Where the body of a 2xx response is stored: the template of a temporary file's path, ending in "XXXXXX". Missing
    /// folders are created. If absent, the body is kept in memory.
    std::optional<QString> saveAs;
    /// The maximum size in bytes of a stored body, after decompression.
    qint64 mostStored = MaximumInMemory;

    bool operator==(const HttpRequest &) const = default;
};
