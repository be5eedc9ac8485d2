/// Runs a Jira site with 300 issues and one with 5,000, to which a user can sign in without an account, and one of Data
/// Center. Runs until it is interrupted.
#include "simulator/SimulatedSite.h"
#include "simulator/SiteSeed.h"

#include <QCoreApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/// The preferred port. With the same port in every run, a saved session finds its site again.
constexpr quint16 smallPort = 8300;
constexpr quint16 largePort = 8500;
constexpr quint16 dataCenterPort = 8700;

/// A site with the current time.
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

/// The number of seconds after `--search-lag`; 0 without it.
std::chrono::seconds searchLag()
{
    const QStringList words = QCoreApplication::arguments();
    const qsizetype at = words.indexOf(u"--search-lag"_s);
    return std::chrono::seconds(at < 0 ? 0 : words.value(at + 1).toInt());
}

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    // For tests that run in parallel: with arbitrary ports, no test can find the site of another one.
    const bool anywhere = QCoreApplication::arguments().contains(u"--any-port"_s);
    SimulatedSite small(presentCompany(300), {}, anywhere ? 0 : smallPort);
    SimulatedSite large(presentCompany(5000), {}, anywhere ? 0 : largePort);
    SimulatedSite dataCenter(presentCompany(300), {}, anywhere ? 0 : dataCenterPort);
    dataCenter.site().edition = Site::Edition::DataCenter;
    small.site().searchLag = large.site().searchLag = searchLag();
    tell(small);
    tell(large);
    std::printf("Data Center           %s\n", qPrintable(dataCenter.url().toString()));
    std::printf("E-mail                %s (none: the token is taken as a personal access token)\n"
                "Token                 %s\n"
                "Ctrl+C ends it.\n",
                qPrintable(small.site().email), qPrintable(small.site().token));
    std::fflush(stdout);
    return QCoreApplication::exec();
}
