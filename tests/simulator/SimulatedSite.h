#pragma once

#include "simulator/RawServer.h"
#include "simulator/Site.h"
#include "simulator/SiteRoute.h"

#include <QHash>

/// A Jira site that runs on the test's thread, on loopback. It answers as the real one does, and fails as a test wants:
///
///     SimulatedSite site(SiteSeed::company(300, now));
///     site.answer(SiteOperation::AddComment, RawAnswer::nothing(RawAnswer::Ending::Reset));
///     ... a client that is signed in with site.site().email and .token ...
///     EXPECT_EQ(site.journal().size(), 1);
///
/// Files and pictures are on another origin, `files`, to which the site redirects.
class SimulatedSite
{
public:
    /// Over TLS when there is a certificate; at `port` if that is free. The site's addresses are set to those of the
    /// servers.
    explicit SimulatedSite(Site site, std::optional<Certificates::Kind> certificate = {},
                           quint16 port = 0);
    SimulatedSite(const SimulatedSite &) = delete;
    SimulatedSite &operator=(const SimulatedSite &) = delete;

    QUrl url() const { return m_server.url(); }
    Site &site() { return m_site; }
    RawServer &server() { return m_server; }
    RawServer &files() { return m_files; }
    const QList<RawRequest> &journal() const { return m_server.journal(); }

    /// From now on an operation is answered with this, and the site does not see the request.
    void answer(SiteOperation operation, const RawAnswer &answer);
    /// The site answers everything by itself again.
    void recover() { m_faults.clear(); }

private:
    RawAnswer answerTo(const RawRequest &request);

    Site m_site;
    QHash<SiteOperation, RawAnswer> m_faults;
    RawServer m_server;
    RawServer m_files;
};
