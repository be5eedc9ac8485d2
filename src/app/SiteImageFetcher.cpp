#include "app/SiteImageFetcher.h"

namespace {

/// The coroutine keeps its session alive while the request runs.
QCoro::Task<ImageAnswer> fetched(std::shared_ptr<HttpSession> session, HttpRequest request)
{
    const HttpAnswer answer = co_await session->send(std::move(request));
    co_return ImageAnswer{answer.status, answer.body};
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
