#pragma once

#include <QByteArray>
#include <QCoro/QCoroTask>
#include <QUrl>

#include <chrono>
#include <optional>

/// A picture to fetch.
struct ImageRequest
{
    QUrl url;
    /// The whole value of the header "Authorization"; without one the request carries no credentials.
    std::optional<QString> authorization;
    std::chrono::seconds timeout{60};
    /// What comes beyond so many bytes is of no use: the fetcher may give up there.
    qint64 mostBytes = 0;
};

/// What came back.
struct ImageAnswer
{
    /// 0 where the answer was not one of HTTP.
    int status = 0;
    QByteArray body;
};

/// The road to pictures outside. Redirects must not take the credentials to another host.
class ImageFetcher
{
public:
    ImageFetcher() = default;
    virtual ~ImageFetcher() = default;
    ImageFetcher(const ImageFetcher &) = delete;
    ImageFetcher &operator=(const ImageFetcher &) = delete;

    /// Any status is an answer; no answer at all throws a `Failure`.
    virtual QCoro::Task<ImageAnswer> fetch(ImageRequest request) = 0;
};
