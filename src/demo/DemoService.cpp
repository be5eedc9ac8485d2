#include "demo/DemoService.h"

#include "async/WhileAlive.h"
#include "async/WorkThreads.h"
#include "demo/DemoEdits.h"
#include "demo/DemoFiles.h"
#include "demo/DemoQueries.h"
#include "demo/DemoWiring.h"
#include "model/Failure.h"
#include "model/JiraError.h"
#include "model/TextFolding.h"

#include <QCoro/QCoroFuture>
#include <QPromise>
#include <QThreadPool>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

const QString &host()
{
    static const QString name = u"orvantis.atlassian.net"_s;
    return name;
}

/// Writes the files of the seed on another thread.
QFuture<void> startWriting(const QString &folder)
{
    // The thread pool needs a function that can be copied.
    const auto promise = std::make_shared<QPromise<void>>();
    QFuture<void> future = promise->future();
    promise->start();
    workThreads().start([promise, folder] {
        DemoFiles::write(folder);
        promise->finish();
    });
    return future;
}

QCoro::Task<> finished(QFuture<void> future)
{
    co_await future;
}

} // namespace

DemoService::DemoService(Clock &clock, const SystemCalendar &calendar, DemoSources sources)
    : m_clock(clock),
      m_calendar(calendar),
      m_sources(std::move(sources)),
      m_site(DemoSite::from(DemoSeed::make(m_clock.now(), m_calendar.current(), m_sources.newID))),
      m_areSizesMissing(!DemoFiles::isComplete(m_sources.folder))
{
    DemoWiring::attach(m_site, DemoFiles::seed(m_sources.folder, m_clock.now()), m_sources.newID);
    m_files = startWriting(m_sources.folder);
}

QCoro::Task<> DemoService::pause(std::stop_token stop)
{
    constexpr int shortest = 80;
    constexpr int spread = 140;
    const std::chrono::milliseconds latency(shortest + m_sources.draw(spread));
    try {
        co_await whileAlive(this, m_clock.sleep(latency, std::move(stop)));
    } catch (const OwnerGone &) {
        // The session of the caller is over, so the operation counts as cancelled.
        throw Cancelled();
    }
}

/// Ends when the sizes of the seed's files are known: at once, unless they had to be made.
QCoro::Task<> DemoService::filesWritten()
{
    if (!m_areSizesMissing)
        co_return;
    try {
        co_await whileAlive(this, finished(m_files));
    } catch (const OwnerGone &) {
        throw Cancelled();
    }
    for (QList<Attachment> &attachments : m_site.files)
        DemoFiles::updateSizes(attachments);
    m_areSizesMissing = false;
}

QString DemoService::siteName() const
{
    return host();
}

QCoro::Task<JiraUser> DemoService::currentUser(std::stop_token)
{
    co_return DemoSeed::me();
}

QCoro::Task<QList<Project>> DemoService::projects(std::stop_token stop)
{
    co_await pause(std::move(stop));
    co_return DemoSeed::projects();
}

QCoro::Task<Project> DemoService::project(QString key, std::stop_token)
{
    const auto found = std::ranges::find(DemoSeed::projects(), key, &Project::key);
    if (found == DemoSeed::projects().end())
        throw JiraError(JiraError::Http{404, {}});
    co_return *found;
}

QCoro::Task<QList<IssueStatus>> DemoService::statuses(QString, std::stop_token)
{
    co_return DemoSeed::statuses();
}

QCoro::Task<QList<IssuePriority>> DemoService::priorities(std::stop_token)
{
    co_return DemoSeed::priorities();
}

QCoro::Task<QList<JiraUser>> DemoService::assignableUsers(QString, std::stop_token)
{
    co_return DemoSeed::users();
}

QCoro::Task<IssueList> DemoService::issues(IssueScope scope, std::stop_token stop)
{
    co_await pause(std::move(stop));
    co_return DemoQueries::issues(m_site, scope, m_clock.now(), m_calendar.current());
}

QCoro::Task<IssueList> DemoService::search(QString text, std::stop_token stop)
{
    co_await pause(std::move(stop));
    co_return DemoQueries::search(m_site, text);
}

QCoro::Task<Issue> DemoService::issue(QString key, std::stop_token stop)
{
    co_await pause(std::move(stop));
    co_await filesWritten();
    Issue details = DemoQueries::details(m_site, key);
    DemoEdits::opened(m_site, key);
    co_return details;
}

QCoro::Task<QList<Comment>> DemoService::comments(QString key, std::stop_token)
{
    co_return m_site.threads.value(key);
}

QCoro::Task<QList<WorkflowTransition>> DemoService::transitions(QString key, std::stop_token)
{
    co_return DemoQueries::transitions(m_site, key);
}

QCoro::Task<QList<JiraUser>> DemoService::searchUsers(QString query, std::stop_token)
{
    QList<JiraUser> found = DemoSeed::users();
    found.append(DemoSeed::customer());
    found.removeIf([&](const JiraUser &user) { return !localizedContains(user.name, query); });
    co_return found;
}

QCoro::Task<QUrl> DemoService::download(Attachment attachment, std::stop_token)
{
    if (!attachment.contentURL || !attachment.contentURL->isLocalFile())
        throw JiraError(JiraError::InvalidResponse{});
    co_return *attachment.contentURL;
}

std::optional<QUrl> DemoService::browseURL(const QString &key) const
{
    QUrl address;
    address.setScheme(u"https"_s);
    address.setHost(host());
    address.setPath(u"/browse/"_s + key);
    return address;
}
