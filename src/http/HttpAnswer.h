#pragma once

#include <QByteArray>
#include <QTemporaryFile>
#include <QUrl>

#include <memory>

/// What a server answered, whatever its status; no redirect, since those are followed.
struct HttpAnswer
{
    /// 200 to 599.
    int status = 0;
    /// Of the body, in lower case and without parameters: "application/json". Empty when the server named none.
    QByteArray mediaType;
    /// Unpacked. Empty when the body was stored.
    QByteArray body;
    /// Where the body was stored, complete; the file goes with the last copy of the answer unless it was moved away.
    std::shared_ptr<QTemporaryFile> file;

    /// The server announced the body's length, and it was met. Of a body whose length was not announced nobody can tell
    /// that it was cut short.
    bool hasKnownLength = false;

    bool operator==(const HttpAnswer &) const = default;

    bool isSuccess() const { return status >= 200 && status < 300; }
};
