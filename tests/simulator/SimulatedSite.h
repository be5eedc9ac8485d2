#pragma once

#include "simulator/Site.h"
#include "simulator/SiteRoute.h"
#include "simulator/server/AnswerForm.h"
#include "simulator/server/RawServer.h"

#include <QHash>

/// A simulated Jira site that runs on the thread of the test, on the loopback interface. It responds like the real
/// site, and with faults if a test sets them:
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
    /// Uses TLS if a certificate is given, and `port` if it is free. The addresses in `site` are set to those of the
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

    /// From now on, the operation gets this response and the request is not passed to the site.
    void answer(SiteOperation operation, const RawAnswer &answer);
    /// How the site transfers its responses from now on.
    void transferAs(AnswerForm form) { m_form = form; }
    /// Ends all faults: the site handles every operation itself again.
    void recover() { m_faults.clear(); }

private:
    /// What the site was until a write.
    struct Past
    {
        QDateTime until;
        Site site;
    };

    RawAnswer answerTo(const RawRequest &request);
    RawAnswer written(const RawRequest &request);
    /// The site as a search finds it.
    const Site &indexed() const;

    Site m_site;
    /// Oldest first; kept only while searches lag.
    QList<Past> m_past;
    QHash<SiteOperation, RawAnswer> m_faults;
    AnswerForm m_form = AnswerForm::Plain;
    RawServer m_server;
    RawServer m_files;
};
