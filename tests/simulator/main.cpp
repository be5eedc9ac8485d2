/// A Jira site of 300 issues and one of 5,000, to sign in to without an account. Runs until it is interrupted.
#include "simulator/SimulatedSite.h"
#include "simulator/SiteSeed.h"

#include <QCoreApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/// Where the sites are unless something else is there; so a session that was kept finds its site again.
constexpr quint16 smallPort = 8300;
constexpr quint16 largePort = 8500;

/// A site that lives in the present.
Site presentCompany(int issues)
{
    Site site = SiteSeed::company(issues, QDateTime::currentDateTimeUtc());
    site.now = [] { return QDateTime::currentDateTimeUtc(); };
    site.zone = QTimeZone::systemTimeZone();
    return site;
}

void tell(SimulatedSite &simulated)
{
    const Site &site = simulated.site();
    std::printf("Site of %5lld issues  %s\n", qlonglong(site.issues().size()),
                qPrintable(simulated.url().toString()));
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    // For tests side by side: none finds another's site where its own was.
    const bool anywhere = QCoreApplication::arguments().contains(u"--any-port"_s);
    SimulatedSite small(presentCompany(300), {}, anywhere ? 0 : smallPort);
    SimulatedSite large(presentCompany(5000), {}, anywhere ? 0 : largePort);
    tell(small);
    tell(large);
    std::printf("E-mail                %s (none: the token is taken as a personal access token)\n"
                "Token                 %s\n"
                "Ctrl+C ends it.\n",
                qPrintable(small.site().email), qPrintable(small.site().token));
    std::fflush(stdout);
    return QCoreApplication::exec();
}
