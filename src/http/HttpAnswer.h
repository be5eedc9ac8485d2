#pragma once

#include "http/HttpRequest.h"
#include "http/HttpStatus.h"

#include <QByteArray>
#include <QTemporaryFile>
#include <QUrl>

#include <algorithm>
#include <memory>

/// The response of a server, with any status except a redirect, since redirects are followed.
struct HttpAnswer
{
    /// The HTTP status, from 200 to 599.
    int status = 0;
    /// The media type of the body, in lower case and without parameters: "application/json". Empty if the server sent
    /// none.
    QByteArray mediaType;
    /// All header fields of the response.
    QList<HttpHeader> headers;
    /// The decompressed body. Empty if the body was stored in a file.
    QByteArray body;
    /// The file with the complete body, if it was stored. It is deleted with the last copy of the response unless it
    /// was moved.
    std::shared_ptr<QTemporaryFile> file;
    /// The SHA-256 of the stored body, computed while it arrived, as 64 lower-case hexadecimal digits. Empty if the body
    /// was kept in memory.
    QByteArray sha256;

    bool operator==(const HttpAnswer &) const = default;

    /// The value of a header field, whose name may be in any case; empty if the response does not have it.
    QByteArray header(const QByteArray &name) const
    {
        const auto found = std::ranges::find_if(headers, [&](const HttpHeader &header) {
            return header.name.compare(name, Qt::CaseInsensitive) == 0;
        });
        return found == headers.end() ? QByteArray() : found->value;
    }
    bool isSuccess() const { return HttpStatus::isSuccess(status); }
};
