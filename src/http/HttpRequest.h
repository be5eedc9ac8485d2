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

    /// How long a JSON request may take as a whole, from its start to the last byte of its answer.
    static constexpr std::chrono::seconds OrdinaryLimit{60};
    /// The same for the transfer of a file.
    static constexpr std::chrono::seconds TransferLimit{300};
    /// The most bytes that an answer kept in memory may have, unpacked. Some ten times a page of a hundred issues with
    /// long histories.
    static constexpr qint64 MaximumInMemory = 64LL * 1024 * 1024;

    QByteArray verb = "GET";
    QUrl url;
    Purpose purpose = Purpose::Read;
    /// Beside what every request carries: `Authorization`, `User-Agent` and `Accept-Encoding`.
    QList<HttpHeader> headers;
    std::optional<QByteArray> body;
    std::chrono::milliseconds limit = OrdinaryLimit;
    /// Where the body of a 2xx answer is stored: the pattern of a temporary file's path, ending in "XXXXXX". Missing
    /// folders are made. Without it the body stays in memory.
    std::optional<QString> saveAs;

    bool operator==(const HttpRequest &) const = default;
};
