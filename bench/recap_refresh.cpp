// Measures the longest event of the UI thread while a comment is typed beside a recap of 400 issues: alone, and while
// a refresh of the recap arrives.

#include "BenchIssues.h"
#include "BenchSite.h"
#include "KeyTimes.h"
#include "LongestStep.h"
#include "app/Interpreter.h"
#include "app/Renderer.h"
#include "app/VelmoraApp.h"
#include "async/Spawn.h"
#include "richtext/ADFNodes.h"

#include <QApplication>
#include <QQuickItem>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int Issues = 400;
constexpr int Turns = 50;

/// An issue with a history: it was created and went through two statuses a minute ago.
Issue withHistory(int number, const QDateTime &now)
{
    Issue issue = sample(number);
    issue.updated = now.addSecs(-60);
    issue.activity = {
        {issue.updated, issue.assignee, ActivityEvent::Created{}},
        {issue.updated, issue.assignee, ActivityEvent::AssigneeChanged{u"Noam Talvère 1"_s}},
        {issue.updated, issue.assignee, ActivityEvent::StatusChanged{u"À faire"_s, u"En revue"_s}},
        {issue.updated, issue.assignee,
         ActivityEvent::StatusChanged{u"En revue"_s, issue.status.name()}}};
    return issue;
}

/// The recap as the site returns it now. Every tenth issue differs from turn to turn.
IssueList recap(int turn)
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    IssueList issues;
    for (int number = 0; number < Issues; ++number) {
        Issue issue = withHistory(number, now);
        if (number % 10 == turn % 10)
            issue.summary += u" bis"_s;
        issues.append(issue);
    }
    return issues;
}

/// Types a letter or deletes it, and returns the longest event until the window has nothing to draw any more. What
/// happens first is delivered as an event too.
qint64 longestEvent(LongestStep<QApplication> &application, FrameTimer &timer, int turn,
                    const std::function<void()> &first)
{
    timer.answer([&] {
        application.take();
        QMetaObject::invokeMethod(&application, first, Qt::QueuedConnection);
        const bool isLetter = turn % 2 == 0;
        timer.send(isLetter ? Qt::Key_E : Qt::Key_Backspace, isLetter ? u"e"_s : u"\b"_s);
    });
    timer.settle();
    return application.take();
}

void print(const char *what, std::vector<qint64> times, double baseline)
{
    std::ranges::sort(times);
    const auto milliseconds = [](qint64 time) { return double(time) / 1e6; };
    const double median = milliseconds(times.at(times.size() / 2));
    std::printf("%-34s %5zu %7.2f %7.2f %7.2f\n", what, times.size(), median,
                milliseconds(times.back()), median / (baseline > 0 ? baseline : median));
    std::fflush(stdout);
}

double medianOf(std::vector<qint64> times)
{
    std::ranges::sort(times);
    return double(times.at(times.size() / 2)) / 1e6;
}

void openIssue(VelmoraApp &velmora, FrameTimer &timer)
{
    auto &store = velmora.store();
    store.select(
        IssueScope::activity({.range = ActivityRange::Month, .offset = 0, .teamWide = true}));
    timer.settle();
    if (store.visibleCount() != Issues)
        qFatal("%d of %d issues are shown.", store.visibleCount(), Issues);
    timer.press(Qt::Key_J, u"j"_s);
    store.run(Command::OpenIssue);
    timer.settle();
    editor(*velmora.mainWindow(), u"Commentaire"_s)->forceActiveFocus();
}

void measure(LongestStep<QApplication> &application, VelmoraApp &velmora, ScriptedService &site)
{
    FrameTimer timer(*velmora.mainWindow());
    timer.settle();
    openIssue(velmora, timer);
    std::vector<qint64> alone;
    std::vector<qint64> refreshed;
    for (int turn = 0; turn < Turns; ++turn) {
        alone.push_back(longestEvent(application, timer, turn, [] {}));
        site.issuesCalls.answerWith(recap(turn));
        refreshed.push_back(
            longestEvent(application, timer, turn, [&] { spawn(velmora.store().reload()); }));
    }
    std::printf("The longest event, in milliseconds of the UI thread's processor time (%s)\n",
                qUtf8Printable(timer.renderer()));
    std::printf("%-34s %5s %7s %7s %7s\n", "", "count", "p50", "worst", "p50 x");
    print("a letter in a comment", alone, 0);
    print("a letter while 400 issues arrive", refreshed, medianOf(alone));
}

} // namespace

int main(int argc, char **argv)
{
    chooseRenderer();
    interpretAtFirst();
    QApplication::setQuitOnLastWindowClosed(false);
    LongestStep<QApplication> application(argc, argv);
    const QTemporaryDir folder;
    const auto site = siteWith({.issues = Issues});
    site->issuesCalls.answerWith(recap(-1));
    site->issueCalls.answerBy([](const QString &key) {
        Issue issue = withHistory(key.section(u'-', 1).toInt(), QDateTime::currentDateTimeUtc());
        issue.description =
            ADF::document({ADF::container(u"paragraph", {ADF::text(issue.summary)})});
        return issue;
    });
    site->commentsCalls.answerWith(QList<Comment>{});
    VelmoraApp velmora(outsideWith(site, folder.path()));
    if (!velmora.open())
        return 1;
    measure(application, velmora, *site);
    return 0;
}
