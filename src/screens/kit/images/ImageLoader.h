#pragma once

#include "platform/decoding/Decoders.h"
#include "screens/kit/images/ImageFetcher.h"

#include <QFuture>
#include <QHash>
#include <QImage>
#include <QObject>
#include <QPromise>

#include <memory>

/// Fetches pictures for the whole program, each with at most one request at a time, and keeps them for the lifetime of
/// the process.
///
/// The credentials of the site are sent only to pictures on exactly the host of the site. Failures are not reported: a
/// picture that cannot be fetched is null, and the next call tries again. For the UI thread only. Pictures are decoded
/// in another process.
class ImageLoader : public QObject
{
    Q_OBJECT

public:
    /// The maximum size of a file.
    static constexpr qint64 mostBytes = qint64(16) * 1024 * 1024;

    /// The decoders must outlive this object.
    explicit ImageLoader(Decoders &decoders = Decoders::shared()) : m_decoders(decoders) {}
    ~ImageLoader() override;

    /// The instance of the program.
    static ImageLoader &shared();

    /// Sets the fetcher and removes the pictures that the one before fetched. With null nothing is fetched. The fetcher
    /// must outlive the loader or be reset to null.
    void setFetcher(ImageFetcher *fetcher);
    /// Sets the only host that receives the credentials, in its encoded form. Empty for none.
    void setSiteHost(const QString &host) { m_siteHost = host; }

    /// Whether a request for this address carries the credentials: the host of the address must be exactly the host of
    /// the site.
    bool isOnSite(const QUrl &url) const;
    /// A picture that is already loaded, otherwise null.
    QImage cached(const QUrl &url) const { return m_cache.value(url); }
    /// The picture of an address, fetched if necessary. Null if it cannot be fetched. Calls during a running request
    /// for the same address wait for that request.
    QCoro::Task<QImage> image(QUrl url);
    /// The number of running requests.
    int pendingCount() const { return int(m_pending.size()); }

private:
    using Promise = std::shared_ptr<QPromise<QImage>>;

    QFuture<QImage> sharedRequest(const QUrl &url);
    QCoro::Task<> load(QUrl url);
    QCoro::Task<QByteArray> bytes(QUrl url);
    void finish(const QUrl &url, const QImage &image);

    Decoders &m_decoders;
    ImageFetcher *m_fetcher = nullptr;
    QString m_siteHost;
    QHash<QUrl, QImage> m_cache;
    QHash<QUrl, Promise> m_pending;
};
