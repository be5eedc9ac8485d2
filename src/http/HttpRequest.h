#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUrl>

#include <chrono>
#include <optional>

/// One field of a request's head.
struct HttpHeader
{
    QByteArray name;
    QByteArray value;

    bool operator==(const HttpHeader &) const = default;
};

/// One request, as it goes out.
struct HttpRequest
{
    /// What the request does to the server.
    enum class Purpose {
        /// Changes nothing: it goes over connections that are kept alive, and when such a connection turns out dead the
        /// network stack sends it again over another.
        Read,
        /// Changes something: it goes over a connection of its own and reaches the server at most once. A connection
        /// that breaks before the answer is a failure, and nobody knows then whether the change was made.
        Write
    };

    /// When a request is given up. Those of a JSON request, as they stand.
    struct TimeLimits
    {
        /// How long nothing may go out or come in, the wait for the answer included.
        std::chrono::milliseconds idle = std::chrono::seconds(30);
        /// From its start to the last byte of its answer; absent where bytes may keep coming.
        std::optional<std::chrono::milliseconds> whole = std::chrono::seconds(60);

        bool operator==(const TimeLimits &) const = default;
    };
    /// Those of a file's transfer: a server may look long at what it was sent, and a slow line is no failure.
    static constexpr TimeLimits transferLimits() { return {std::chrono::seconds(300), {}}; }
    /// The most bytes that an answer kept in memory usually may have, unpacked. Some ten times a page of a hundred issues
    /// with long histories.
    static constexpr qint64 MaximumInMemory = 64LL * 1024 * 1024;

    QByteArray verb = "GET";
    QUrl url;
    Purpose purpose = Purpose::Read;
    /// Beside what every request carries: `Authorization`, `User-Agent` and `Accept-Encoding`.
    QList<HttpHeader> headers;
    std::optional<QByteArray> body;
    TimeLimits limits = {};
    /// The most bytes that the answer may have, unpacked, if it is kept in memory.
    qint64 mostInMemory = MaximumInMemory;
    /// Where the body of a 2xx answer is stored: the pattern of a temporary file's path, ending in "XXXXXX". Missing
    /// folders are made. Without it the body stays in memory.
    std::optional<QString> saveAs;

    bool operator==(const HttpRequest &) const = default;
};
