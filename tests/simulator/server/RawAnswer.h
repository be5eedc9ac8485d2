#pragma once

#include <QByteArray>
#include <QList>

#include <utility>

/// The bytes that a server sends in response to a request, valid or not, and what it does with the connection
/// afterwards.
struct RawAnswer
{
    enum class Ending {
        /// Waits for the next request.
        KeepOpen,
        Close,
        /// Resets the connection (RST) after the bytes were sent.
        Reset,
        /// Leaves the connection open and sends nothing more.
        Stall,
    };
    using Headers = QList<std::pair<QByteArray, QByteArray>>;

    QByteArray bytes;
    Ending ending = Ending::KeepOpen;
    /// The number of additional blanks sent after the bytes. They are generated while the client reads, not kept in
    /// memory.
    qint64 blanks = 0;

    /// A well-formed response. It has a `Content-Length` header unless the given headers contain one.
    static RawAnswer http(int status, const QByteArray &body, const Headers &headers = {});
    static RawAnswer json(const QByteArray &body, int status = 200);
    static RawAnswer html(const QByteArray &body, int status = 200);
    /// A redirect with status 302 or another redirect status.
    static RawAnswer redirect(const QByteArray &location, int status = 302);
    /// No bytes of a response, followed by the given ending.
    static RawAnswer nothing(Ending ending) { return {{}, ending}; }
    /// A well-formed header that announces this many blanks, followed by `sent` blanks.
    static RawAnswer large(qint64 announced, qint64 sent, const QByteArray &contentType);

    /// The same without an announced length; the end of the connection marks the end of the body.
    static RawAnswer largeOfUnknownLength(qint64 sent, const QByteArray &contentType);

    /// The same response without its last bytes, followed by the given ending.
    RawAnswer cut(qsizetype missing, Ending then) const;
    RawAnswer withEnding(Ending then) const;
};
