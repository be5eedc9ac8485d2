#include "simulator/SimulatedSite.h"

#include "simulator/SiteRest.h"

SimulatedSite::SimulatedSite(Site site, std::optional<Certificates::Kind> certificate, quint16 port)
    : m_site(std::move(site)), m_server(certificate, port), m_files(certificate)
{
    m_site.address = m_server.url();
    m_site.media = m_files.url();
    m_server.answerBy([this](const RawRequest &request) { return answerTo(request); });
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
    return answerOf(m_site, request);
}
