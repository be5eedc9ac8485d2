#pragma once

#include <QByteArray>
#include <QCoro/QCoroTask>
#include <QTemporaryFile>
#include <QUrl>

#include <memory>
#include <optional>

/// Reads the feed and fetches archives. Tests script it. UI thread only.
class UpdateTransport
{
public:
    /// A document in memory.
    struct Document
    {
        /// The status of the server's response; absent if no server was asked, as for a local file.
        std::optional<int> status;
        QByteArray body;
    };
    /// A file on disk.
    struct Archive
    {
        /// As in `Document`.
        std::optional<int> status;
        /// The file, deleted with its last owner; null if the status is outside 200 to 299.
        std::shared_ptr<QTemporaryFile> file;
        /// The SHA-256 of the file, computed while it arrived, in 64 lower-case hexadecimal digits.
        QByteArray sha256;
    };

    UpdateTransport() = default;
    virtual ~UpdateTransport() = default;
    UpdateTransport(const UpdateTransport &) = delete;
    UpdateTransport &operator=(const UpdateTransport &) = delete;

    /// Reads the feed, never from a cache. Fails with `Failure` if there is no response.
    virtual QCoro::Task<Document> readFeed(QUrl address) = 0;
    /// Fetches an archive into a temporary file. Fails with `Failure` if there is no complete response.
    virtual QCoro::Task<Archive> fetchArchive(QUrl address) = 0;
};
