#include "screens/kit/images/ImageLoader.h"

#include "async/Spawn.h"
#include "async/WhileAlive.h"
#include "model/Failure.h"

#include <QCoro/QCoroFuture>

namespace {

constexpr int firstRefusedStatus = 400;
/// The maximum number of pixels that a picture may have. Decoding needs up to about 100 MB.
constexpr qint64 mostPixels = qint64(24) * 1024 * 1024;
/// The box to which larger pictures are scaled down.
constexpr QSize keptSize(2048, 2048);

void settle(QPromise<QImage> &promise, const QImage &image)
{
    promise.addResult(image);
    promise.finish();
}

} // namespace

ImageLoader &ImageLoader::shared()
{
    static ImageLoader loader;
    return loader;
}

ImageLoader::~ImageLoader()
{
    // Callers that still wait receive a null picture, because a future that never finishes would keep them suspended
    // for ever.
    for (const auto &promise : std::as_const(m_pending))
        settle(*promise, {});
}

void ImageLoader::setFetcher(ImageFetcher *fetcher)
{
    m_fetcher = fetcher;
    m_cache.clear();
}

bool ImageLoader::isOnSite(const QUrl &url) const
{
    return !m_siteHost.isEmpty() && url.host(QUrl::FullyEncoded) == m_siteHost;
}

QCoro::Task<QImage> ImageLoader::image(QUrl url)
{
    const auto known = m_cache.constFind(url);
    if (known != m_cache.cend())
        co_return *known;
    co_return co_await sharedRequest(url);
}

QFuture<QImage> ImageLoader::sharedRequest(const QUrl &url)
{
    auto &promise = m_pending[url];
    if (promise)
        return promise->future();
    promise = std::make_shared<QPromise<QImage>>();
    promise->start();
    // A copy, because an immediate answer removes the promise from the map.
    const auto future = promise->future();
    spawn(load(url));
    return future;
}

QCoro::Task<> ImageLoader::load(QUrl url)
{
    const QByteArray body = co_await whileAlive(this, bytes(url));
    Decoded result;
    if (!body.isEmpty() && body.size() <= mostBytes) {
        const DecodingRequest request{
            .kind = DecodingKind::Picture, .bound = keptSize, .mostPixels = mostPixels};
        result = co_await whileAlive(this, m_decoders.decode(DecodingInput::bytes(body), request));
    }
    // Null if the file is no picture, or if it exceeds the limits.
    finish(url, result.image);
}

QCoro::Task<QByteArray> ImageLoader::bytes(QUrl url)
{
    if (!m_fetcher)
        co_return QByteArray();
    const ImageRequest request{
        .url = url, .withCredentials = isOnSite(url), .mostBytes = mostBytes};
    // The helper starts while the picture is fetched.
    m_decoders.prepare();
    try {
        const ImageAnswer answer = co_await m_fetcher->fetch(request);
        co_return answer.status < firstRefusedStatus ? answer.body : QByteArray();
    } catch (const Failure &) {
        co_return QByteArray();
    }
}

void ImageLoader::finish(const QUrl &url, const QImage &image)
{
    if (!image.isNull())
        m_cache.insert(url, image);
    if (const auto promise = m_pending.take(url))
        settle(*promise, image);
}
