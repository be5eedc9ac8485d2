#pragma once

#include "http/HttpSession.h"
#include "update/UpdateTransport.h"

/// Reads the feed and fetches archives over HTTPS and HTTP, and from local files for a feed that the user has typed as
/// a "file:" address. Sizes and times are limited, so that a server cannot occupy the program or the disk forever.
class HttpTransport final : public UpdateTransport
{
public:
    /// The longest time in which no byte of the feed arrives.
    static constexpr std::chrono::milliseconds FeedIdleLimit = std::chrono::seconds(20);
    /// The longest time from the request to the last byte of the feed.
    static constexpr std::chrono::milliseconds FeedWholeLimit = std::chrono::seconds(60);
    /// The largest feed in bytes. A feed has some kilobytes, most of them notes.
    static constexpr qint64 LargestFeed = 1024LL * 1024;
    /// The longest time in which no byte of an archive arrives.
    static constexpr std::chrono::milliseconds ArchiveIdleLimit = std::chrono::seconds(60);
    /// The longest time for a whole archive, which is long enough for a slow mobile connection.
    static constexpr std::chrono::milliseconds ArchiveWholeLimit = std::chrono::hours(4);
    /// The largest archive in bytes, about five times the size of one with all libraries.
    static constexpr qint64 LargestArchive = 512LL * 1024 * 1024;

    /// Archives are stored in `temporaryFolder` until they are moved. The clock must outlive this object.
    HttpTransport(Clock &clock, QString temporaryFolder, qint64 largestArchive = LargestArchive);

    QCoro::Task<Document> readFeed(QUrl address) override;
    QCoro::Task<Archive> fetchArchive(QUrl address) override;

private:
    HttpSession m_session;
    QString m_temporaryFolder;
    qint64 m_largestArchive;
};
