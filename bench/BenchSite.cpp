#include "BenchSite.h"

#include "BenchClock.h"
#include "BenchIssues.h"
#include "support/FakeDesktop.h"
#include "support/FakeKeychain.h"
#include "support/FakeStatusHost.h"
#include "update/HttpTransport.h"

using namespace Qt::StringLiterals;

namespace {

QList<Project> projects(int count)
{
    QList<Project> list;
    for (int number = 0; number < count; ++number) {
        Project project;
        project.id = project.key = u"P"_s + QString::number(number);
        project.name = u"Équipe "_s + QString::number(number);
        list.append(project);
    }
    return list;
}

} // namespace

std::shared_ptr<ScriptedService> siteWith(SiteSize size)
{
    auto site = std::make_shared<ScriptedService>();
    const auto issues = samples(size.issues).issues;
    site->currentUserCalls.answerWith(issues.first()->assignee.value());
    site->projectsCalls.answerWith(projects(size.projects));
    site->prioritiesCalls.answerWith({});
    site->issuesCalls.answerWith(issues);
    site->transitionsCalls.answerWith({{QStringLiteral("1"), QString(), sample(1).status},
                                       {QStringLiteral("2"), QString(), sample(2).status}});
    site->performCalls.answerWith();
    site->statusesCalls.answerWith({});
    site->assignableUsersCalls.answerWith({});
    site->projectCalls.answerWith({});
    // The results of the palette's search on the server; the site always has at least this many issues.
    site->searchCalls.answerWith(issues.first(20));
    return site;
}

Outside outsideWith(const std::shared_ptr<ScriptedService> &site, const QString &folder)
{
    Outside outside;
    outside.clock = std::make_unique<BenchClock>();
    outside.preferences = std::make_unique<Preferences>(folder + u"/bench.ini"_s);
    outside.preferences->setFlag(u"demoMode"_s, true);
    outside.preferences->setFlag(u"showCompleted"_s, true);
    outside.desktop = std::make_unique<FakeDesktop>();
    outside.statusHost = std::make_unique<FakeStatusHost>();
    outside.keychain = std::make_unique<FakeKeychain>();
    outside.calendar = SystemCalendar::ofThisSystem();
    outside.bundles = AppBundles::ofThisSystem();
    outside.makeUpdateTransport = [folder](Clock &clock) {
        return std::make_unique<HttpTransport>(clock, folder);
    };
    outside.temporaryFolder = folder;
    outside.makeDemo = [site](Clock &, const SystemCalendar &) { return site; };
    return outside;
}
