// Measures the time that the UI thread spends in the store, without a window: when an edit is applied, when it is
// rejected and reverted, and when a refresh arrives that changes the same number of issues in a short and in a long
// list. Times are processor time of the thread.

#include "BenchClock.h"
#include "BenchIssues.h"
#include "state/AppStore.h"
#include "state/ScriptedSessions.h"
#include "support/FakeDesktop.h"
#include "support/ScriptedService.h"
#include "support/TaskResult.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <ctime>

using namespace Qt::StringLiterals;

namespace {

constexpr int Turns = 200;
/// The number of issues that a refresh changes.
constexpr int Changed = 30;

double microseconds(const std::function<void()> &work)
{
    timespec start{};
    timespec end{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &start);
    work();
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &end);
    return double(end.tv_sec - start.tv_sec) * 1e6 + double(end.tv_nsec - start.tv_nsec) / 1e3;
}

void print(const char *what, int issues, std::vector<double> times)
{
    std::ranges::sort(times);
    std::printf("%-36s %6d %9.1f %9.1f %9.1f\n", what, issues, times[times.size() / 2],
                times[times.size() * 99 / 100], times.back());
}

IssueList refreshed(IssueList issues, int turn)
{
    for (int i = 0; i < Changed; ++i) {
        const auto row = (i * issues.size() / Changed + turn) % issues.size();
        Issue changed = *issues.at(row);
        changed.status = sample(i + turn).status;
        changed.updated = changed.updated.addSecs(60);
        issues[row] = changed;
    }
    return issues;
}

class Steps
{
public:
    explicit Steps(int issues) : m_issues(issues)
    {
        sessions.service = service;
        service->currentUserCalls.answerWith(sample(0).assignee.value());
        service->projectsCalls.answerWith({});
        service->prioritiesCalls.answerWith({});
        service->issuesCalls.answerWith(samples(issues).issues);
        service->statusesCalls.answerWith({});
        service->assignableUsersCalls.answerWith({});
        service->projectCalls.answerWith({});
        const TaskResult<void> started(store.startDemo());
        store.setShowCompleted(true);
    }

    void measureEdits()
    {
        std::vector<double> shown;
        std::vector<double> undone;
        for (int turn = 0; turn < Turns; ++turn) {
            const auto key = store.issues().at(turn * 37 % m_issues)->key;
            const auto before = (*store.issue(key))->status;
            const auto wished = before == sample(1).status ? sample(2).status : sample(1).status;
            shown.push_back(microseconds([&] { store.setStatus(wished, {key}); }));
            undone.push_back(microseconds([&] {
                service->transitionsCalls.last().fail(JiraError(JiraError::InvalidResponse{}));
            }));
        }
        print("a status is set", m_issues, shown);
        print("it comes back, with a toast", m_issues, undone);
    }

    void measureRefreshes()
    {
        std::vector<double> times;
        for (int turn = 0; turn < Turns; ++turn) {
            const TaskResult<void> reloaded(store.reload());
            const auto fresh = refreshed(store.issues(), turn);
            times.push_back(microseconds([&] { service->issuesCalls.last().finish(fresh); }));
        }
        print("a refresh with 30 changes", m_issues, times);
    }

    void hold()
    {
        service->issuesCalls.hold();
        service->transitionsCalls.hold();
    }

private:
    int m_issues;
    QTemporaryDir folder;
    Preferences preferences{folder.filePath(u"bench.ini"_s)};
    BenchClock clock;
    FakeDesktop desktop;
    ScriptedSessions sessions;
    std::shared_ptr<ScriptedService> service = std::make_shared<ScriptedService>();
    AppStore store{AppStoreContext{clock, preferences, desktop, sessions, UserCalendar::system(),
                                   [this] { return service; }}};
};

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    std::printf("%-36s %6s %9s %9s %9s\n", "microseconds of the UI thread", "issues", "p50", "p99",
                "worst");
    for (const int issues : {300, 10000}) {
        Steps steps(issues);
        steps.hold();
        steps.measureEdits();
        steps.measureRefreshes();
    }
    return 0;
}
