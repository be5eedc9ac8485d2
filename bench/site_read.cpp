// Measures the time from a request to the records of a list, compared in the same run with a baseline in which Qt's
// network stack fetches the same bytes and simdjson parses them. Also measures the longest event on the UI thread. The
// site runs in a separate process that has generated its responses in advance.

#include "LongestStep.h"
#include "RecordedSite.h"
#include "async/Settled.h"
#include "async/Spawn.h"
#include "jira/JiraClient.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QProcess>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <simdjson.h>

using namespace Qt::StringLiterals;

namespace {

/// The process that runs the recorded site.
class SiteProcess
{
public:
    explicit SiteProcess(const QString &program)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(program, {u"--site"_s});
        m_process.waitForReadyRead(60000);
        const QByteArrayList ports = m_process.readLine().trimmed().split(' ');
        if (ports.size() != 2)
            qFatal("The site did not start");
        pages = QUrl(u"http://127.0.0.1:"_s + QString::fromLatin1(ports.first()));
        large = QUrl(u"http://127.0.0.1:"_s + QString::fromLatin1(ports.last()));
    }
    ~SiteProcess()
    {
        m_process.kill();
        m_process.waitForFinished();
    }
    SiteProcess(const SiteProcess &) = delete;
    SiteProcess &operator=(const SiteProcess &) = delete;

    QUrl pages;
    QUrl large;

private:
    QProcess m_process;
};

/// The times of several runs, in nanoseconds.
struct Times
{
    std::vector<qint64> runs;

    double median()
    {
        std::ranges::sort(runs);
        return double(runs.at(runs.size() / 2)) / 1e6;
    }
    double best() const { return double(std::ranges::min(runs)) / 1e6; }
};

/// The baseline: fetches and parses page after page and does nothing else.
class Floor
{
public:
    explicit Floor(const QUrl &site) : m_url(site.resolved(QUrl(u"/rest/api/3/search/jql"_s))) {}

    void run()
    {
        m_bytes = 0;
        QString token;
        do {
            token = page(token);
        } while (!token.isEmpty());
    }
    qsizetype bytes() const { return m_bytes; }

private:
    QString page(const QString &token)
    {
        QNetworkRequest request(m_url);
        request.setHeader(QNetworkRequest::ContentTypeHeader, u"application/json"_s);
        QJsonObject body;
        if (!token.isEmpty())
            body[u"nextPageToken"_s] = token;
        const std::unique_ptr<QNetworkReply> reply(
            m_manager.post(request, QJsonDocument(body).toJson(QJsonDocument::Compact)));
        QEventLoop loop;
        QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
        loop.exec();
        const QByteArray json = reply->readAll();
        m_bytes += json.size();
        return nextToken(json);
    }
    QString nextToken(const QByteArray &json)
    {
        simdjson::dom::parser parser;
        std::string_view token;
        if (parser.parse(json.constData(), size_t(json.size()))["nextPageToken"].get(token))
            return {};
        return QString::fromUtf8(token.data(), qsizetype(token.size()));
    }

    QUrl m_url;
    QNetworkAccessManager m_manager;
    qsizetype m_bytes = 0;
};

QCoro::Task<> readList(JiraClient *client, QEventLoop *loop, IssueList *list)
{
    // The recap of the month, for which the search includes the history of every issue.
    const ActivityPeriod month{.range = ActivityRange::Month, .offset = 0, .teamWide = true};
    const auto issues = co_await settled(nullptr, client->issues(IssueScope::activity(month)));
    if (!issues)
        qFatal("The list cannot be read: %s", qUtf8Printable(issues.error().message));
    *list = *issues;
    loop->quit();
}

IssueList listOf(JiraClient &client)
{
    IssueList list;
    QEventLoop loop;
    spawn(readList(&client, &loop, &list));
    loop.exec();
    return list;
}

/// The processor time of all threads of the process.
qint64 processNanoseconds()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return now.tv_sec * 1'000'000'000LL + now.tv_nsec;
}

/// The measurements of one of the two compared sides.
struct Side
{
    Times elapsed;
    Times worked;

    template <typename Work>
    void add(const Work &work)
    {
        QElapsedTimer timer;
        timer.start();
        const qint64 start = processNanoseconds();
        work();
        worked.runs.push_back(processNanoseconds() - start);
        elapsed.runs.push_back(timer.nsecsElapsed());
    }
};

void compare(LongestStep<QCoreApplication> &application, const char *what, const QUrl &site,
             int runs)
{
    SystemClock clock;
    const auto calendar = SystemCalendar::ofThisSystem();
    JiraClient client({site, u"a"_s, u"b"_s}, clock, *calendar, {});
    Floor floor(site);
    Side least;
    Side whole;
    Times steps;
    qsizetype issues = 0;
    // The first run opens connections and fills caches on both sides, so it is not measured.
    floor.run();
    listOf(client);
    for (int i = 0; i < runs; ++i) {
        least.add([&] { floor.run(); });
        application.take();
        whole.add([&] { issues = listOf(client).size(); });
        steps.runs.push_back(application.take());
    }
    std::printf("%-30s %8.2f %8.2f %6.2f %8.2f %8.2f %6.2f %6.2f %9.3f %9.3f   (%lld kB, %lld "
                "issues kept)\n",
                what, least.elapsed.median(), whole.elapsed.median(),
                whole.elapsed.median() / least.elapsed.median(), least.elapsed.best(),
                whole.elapsed.best(), whole.elapsed.best() / least.elapsed.best(),
                whole.worked.median() / least.worked.median(), steps.median(),
                double(std::ranges::max(steps.runs)) / 1e6, qlonglong(floor.bytes() / 1024),
                qlonglong(issues));
    std::fflush(stdout);
}

int serve()
{
    const RecordedSite site;
    std::printf("%d %d\n", site.portOfPages(), site.portOfLargePage());
    std::fflush(stdout);
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    LongestStep<QCoreApplication> application(argc, argv);
    if (application.arguments().contains(u"--site"_s))
        return serve();
    const SiteProcess site(QCoreApplication::applicationFilePath());
    std::printf(
        "Milliseconds from a request to the records; work is processor time over all threads\n");
    std::printf("%-30s %8s %8s %6s %8s %8s %6s %6s %9s %9s\n", "", "floor", "client", "x", "best",
                "best", "x", "work x", "step p50", "worst");
    compare(application, "3 pages of 100, with history", site.pages, 50);
    compare(application, "1 page of 1,000, with history", site.large, 10);
    return 0;
}
