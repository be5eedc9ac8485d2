#include "simulator/SimulatedSite.h"

#include "simulator/SiteRest.h"

#include <algorithm>

SimulatedSite::SimulatedSite(Site site, std::optional<Certificates::Kind> certificate, quint16 port)
    : m_site(std::move(site)), m_server(certificate, port), m_files(certificate)
{
    m_site.address = m_server.url();
    m_site.media = m_files.url();
    m_server.answerBy(
        [this](const RawRequest &request) { return inForm(answerTo(request), m_form, request); });
    m_files.answerBy([this](const RawRequest &request) { return fileAnswerOf(m_site, request); });
}

void SimulatedSite::answer(SiteOperation operation, const RawAnswer &answer)
{
    m_faults.insert(operation, answer);
}

RawAnswer SimulatedSite::answerTo(const RawRequest &request)
{
    const auto route = routeOf(request);
    if (route && m_faults.contains(route->operation))
        return m_faults.value(route->operation);
    if (m_site.searchLag.count() == 0 || !route)
        return answerOf(m_site, request);
    if (route->operation != SiteOperation::Search)
        return written(request);
    Site seen = indexed();
    return answerOf(seen, request);
}

RawAnswer SimulatedSite::written(const RawRequest &request)
{
    if (request.method == "GET")
        return answerOf(m_site, request);
    const Past before{m_site.now(), m_site};
    RawAnswer answer = answerOf(m_site, request);
    m_past += before;
    return answer;
}

const Site &SimulatedSite::indexed() const
{
    const QDateTime seen = m_site.now().addDuration(-m_site.searchLag);
    const auto past =
        std::ranges::find_if(m_past, [&](const Past &one) { return one.until > seen; });
    return past == m_past.end() ? m_site : past->site;
}
