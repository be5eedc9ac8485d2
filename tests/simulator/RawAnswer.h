#pragma once

#include <QByteArray>
#include <QList>

#include <utility>

/// The bytes that a server sends for a request, right or wrong, and what it does with the connection then.
struct RawAnswer
{
    enum class Ending {
        /// Waits for the next request.
        KeepOpen,
        Close,
        /// Tears the connection down (RST), once what was sent has left.
        Reset,
        /// Leaves the connection open and never says another word.
        Stall,
    };
    using Headers = QList<std::pair<QByteArray, QByteArray>>;

    QByteArray bytes;
    Ending ending = Ending::KeepOpen;
    /// So many more bytes after those, all blanks; sent as the reader takes them, not held in memory.
    qint64 blanks = 0;

    /// A well-formed answer. Its length is announced unless the headers do so.
    static RawAnswer http(int status, const QByteArray &body, const Headers &headers = {});
    static RawAnswer json(const QByteArray &body, int status = 200);
    static RawAnswer html(const QByteArray &body, int status = 200);
    /// 302, or another of the codes that lead elsewhere.
    static RawAnswer redirect(const QByteArray &location, int status = 302);
    /// No byte of an answer, and then this.
    static RawAnswer nothing(Ending ending) { return {{}, ending}; }
    /// A well-formed head that announces this many blanks, then as many of them as `sent`.
    static RawAnswer large(qint64 announced, qint64 sent, const QByteArray &contentType);

    /// The same without announcing a length: it ends with the connection.
    static RawAnswer largeOfUnknownLength(qint64 sent, const QByteArray &contentType);

    /// The same with the last bytes left off, then this ending.
    RawAnswer cut(qsizetype missing, Ending then) const;
    RawAnswer withEnding(Ending then) const;
};
