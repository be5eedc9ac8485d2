#include "app/SiteImageFetcher.h"

#include "async/OffThread.h"

#include <QFile>
#include <QFileInfo>

namespace {

/// The coroutine keeps its session alive while the request runs.
QCoro::Task<ImageAnswer> fetched(std::shared_ptr<HttpSession> session, HttpRequest request)
{
    const HttpAnswer answer = co_await session->send(std::move(request));
    co_return ImageAnswer{answer.status, answer.body};
}

/// The content of a file; empty if there is none, or if it is too large.
QByteArray contentOf(const QString &path, qint64 mostBytes)
{
    QFile file(path);
    // Devices and pipes have no end.
    const bool isSuitable = QFileInfo(path).isFile() && file.size() <= mostBytes;
    return isSuitable && file.open(QFile::ReadOnly) ? file.read(mostBytes) : QByteArray();
}

QCoro::Task<ImageAnswer> readFrom(QString path, qint64 mostBytes)
{
    auto read = [path, mostBytes] { return contentOf(path, mostBytes); };
    co_return ImageAnswer{0, co_await offThread(std::move(read))};
}

} // namespace

SiteImageFetcher::SiteImageFetcher(ImageLoader &loader, Clock &clock)
    : m_loader(loader), m_clock(clock)
{
    m_loader.setFetcher(this);
}

SiteImageFetcher::~SiteImageFetcher()
{
    m_loader.setFetcher(nullptr);
    for (const auto &session : {m_site, m_elsewhere}) {
        if (session)
            session->close();
    }
}

void SiteImageFetcher::showCredentials(const JiraCredentials &credentials)
{
    m_identity = {Origin::of(credentials.site), credentials.authorizationHeader()};
    m_site.reset();
    m_loader.setSiteHost(credentials.site.host(QUrl::FullyEncoded));
}

QCoro::Task<ImageAnswer> SiteImageFetcher::fetch(ImageRequest request)
{
    if (request.url.isLocalFile())
        return readFrom(request.url.toLocalFile(), request.mostBytes);
    auto &session = request.withCredentials ? m_site : m_elsewhere;
    if (!session)
        session = std::make_shared<HttpSession>(request.withCredentials ? m_identity : Identity{},
                                                m_clock);
    HttpRequest outgoing{.url = request.url,
                         .headers = {},
                         .body = {},
                         .limits = {.whole = request.timeout},
                         .mostInMemory = request.mostBytes,
                         .saveAs = {}};
    return fetched(session, std::move(outgoing));
}
