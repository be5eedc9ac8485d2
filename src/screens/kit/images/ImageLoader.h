#pragma once

#include "screens/kit/images/ImageDecoding.h"
#include "screens/kit/images/ImageFetcher.h"

#include <QFuture>
#include <QHash>
#include <QObject>
#include <QPromise>
#include <QThreadPool>

#include <memory>
#include <optional>

/// Fetches pictures for the whole program, each at most once at a time, and keeps them for the life of the process.
///
/// Its one rule: the credentials of the site go to pictures on exactly the site's host, and nowhere else. No failure is
/// told: a picture that cannot be had is no picture, and the next one to ask tries again. UI thread only; decoding is
/// done on threads of its own.
class ImageLoader : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;
    ~ImageLoader() override;

    /// The program's own.
    static ImageLoader &shared();

    /// The road outside; null for none, when nothing is fetched. Must outlive the loader or be taken away.
    void setFetcher(ImageFetcher *fetcher) { m_fetcher = fetcher; }
    /// The one host that may see the credentials.
    void setAuthHost(const std::optional<QString> &host) { m_authHost = host; }
    /// The whole value of the header "Authorization" for that host.
    void setAuthHeader(const std::optional<QString> &header) { m_authHeader = header; }
    const std::optional<QString> &authHost() const { return m_authHost; }

    /// The credentials that a request for this address carries, if any: the address's host must be the site's, to the
    /// letter.
    std::optional<QString> authorizationFor(const QUrl &url) const;
    /// A picture that is there already; null otherwise.
    QImage cached(const QUrl &url) const { return m_cache.value(url); }
    /// The picture of an address, fetched if need be; null if it cannot be had. Whoever asks while it is under way waits
    /// for the same request.
    QCoro::Task<QImage> image(QUrl url);
    /// How many requests are under way.
    int pendingCount() const { return int(m_pending.size()); }

    /// Forgets all pictures. For tests: a running program keeps them.
    void forget();

private:
    using Promise = std::shared_ptr<QPromise<QImage>>;

    QFuture<QImage> sharedRequest(const QUrl &url);
    QCoro::Task<> load(QUrl url);
    QCoro::Task<QByteArray> bytes(QUrl url);
    QCoro::Task<QImage> decoded(QByteArray bytes);
    void finish(const QUrl &url, const QImage &image);

    ImageFetcher *m_fetcher = nullptr;
    std::optional<QString> m_authHost;
    std::optional<QString> m_authHeader;
    QHash<QUrl, QImage> m_cache;
    QHash<QUrl, Promise> m_pending;
    // Last, so that it has come to rest before the others go.
    QThreadPool m_decoders;
};
