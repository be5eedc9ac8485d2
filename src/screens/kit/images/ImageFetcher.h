#pragma once

#include <QByteArray>
#include <QCoro/QCoroTask>
#include <QUrl>

#include <chrono>

/// A picture to fetch.
struct ImageRequest
{
    QUrl url;
    /// The picture is on the site's own host, so that the request carries the site's credentials. All other requests
    /// carry none.
    bool withCredentials = false;
    std::chrono::seconds timeout{60};
    /// The maximum useful size of the answer in bytes. The fetcher may abort beyond it.
    qint64 mostBytes = 0;
};

/// The answer to a request.
struct ImageAnswer
{
    /// The HTTP status. 0 if the answer was not an HTTP answer.
    int status = 0;
    QByteArray body;
};

/// Fetches external pictures. Redirects must not send the credentials to another host.
class ImageFetcher
{
public:
    ImageFetcher() = default;
    virtual ~ImageFetcher() = default;
    ImageFetcher(const ImageFetcher &) = delete;
    ImageFetcher &operator=(const ImageFetcher &) = delete;

    /// Returns an answer with any status. Throws a `Failure` if there is no answer.
    virtual QCoro::Task<ImageAnswer> fetch(ImageRequest request) = 0;
};
