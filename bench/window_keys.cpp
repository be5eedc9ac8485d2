// Measures the time from a key press to the frame that shows its result: in a nearly empty window, and in the main
// window with lists of fictitious issues. All measurements run in one process, so that their ratios are comparable
// between machines.

#include "BenchIssues.h"
#include "BenchSite.h"
#include "KeyTimes.h"
#include "app/Interpreter.h"
#include "app/Renderer.h"
#include "app/VelmoraApp.h"
#include "async/Spawn.h"

#include <QApplication>
#include <QEventLoop>
#include <QQuickItem>
#include <QTemporaryDir>
#include <QTimer>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

constexpr int Steps = 180;
/// The number of repetitions of actions that redraw the whole window.
constexpr int Turns = 40;

/// Types a letter that every issue contains and deletes it, then types a character that few issues contain and deletes
/// it, and so on.
std::vector<qint64> keystrokes(FrameTimer &timer, int count)
{
    std::vector<qint64> times;
    for (int i = 0; i < count; i += 4) {
        times.push_back(timer.press(Qt::Key_E, u"e"_s));
        times.push_back(timer.press(Qt::Key_Backspace, u"\b"_s));
        times.push_back(timer.press(Qt::Key_7, u"7"_s));
        times.push_back(timer.press(Qt::Key_Backspace, u"\b"_s));
    }
    return times;
}

/// Moves only the text cursor: a frame of the same window in which no row changes.
std::vector<qint64> caretMoves(FrameTimer &timer, int count)
{
    timer.press(Qt::Key_E, u"e"_s);
    std::vector<qint64> times;
    times.reserve(std::size_t(count));
    for (int i = 0; i < count; ++i)
        times.push_back(timer.press(i % 2 == 0 ? Qt::Key_Left : Qt::Key_Right, {}));
    timer.press(Qt::Key_Backspace, u"\b"_s);
    return times;
}

/// Every tenth issue gets another summary, status and time of change.
IssueList refreshed(IssueList issues, int turn)
{
    for (qsizetype i = turn % 10; i < issues.size(); i += 10) {
        Issue changed = *issues[i];
        changed.summary += u" bis"_s;
        changed.status = sample(int(i) + turn).status;
        changed.updated = changed.updated.addSecs(60);
        issues[i] = changed;
    }
    return issues;
}

std::vector<qint64> refreshes(FrameTimer &timer, AppStore &store, ScriptedService &site)
{
    std::vector<qint64> times;
    for (int turn = 0; turn < Turns; ++turn) {
        site.issuesCalls.answerWith(refreshed(store.issues(), turn));
        times.push_back(timer.answer([&] { spawn(store.reload()); }));
    }
    return times;
}

std::vector<qint64> scopes(FrameTimer &timer, AppStore &store)
{
    std::vector<qint64> times;
    for (int turn = 0; turn <= Turns; ++turn) {
        const auto scope = turn % 2 == 0 ? IssueScope::reported() : IssueScope::recent();
        const auto time = timer.press([&] { store.select(scope); });
        // The first two lists are displayed for the first time, so they are not measured.
        if (turn > 1)
            times.push_back(time);
    }
    return times;
}

/// Alternates between two keys; each press reverts the previous one.
std::vector<qint64> switches(FrameTimer &timer, Qt::Key key, Qt::Key back)
{
    std::vector<qint64> times;
    for (int turn = 0; turn < Turns; ++turn) {
        const Qt::Key pressed = turn % 2 == 0 ? key : back;
        times.push_back(timer.press(pressed, QString(QChar(pressed)).toLower()));
    }
    return times;
}

std::vector<qint64> statusChanges(FrameTimer &timer, AppStore &store)
{
    std::vector<qint64> times;
    for (int turn = 0; turn < Turns; ++turn) {
        const auto keys = QStringList{*store.focusedKey()};
        const auto first = sample(1).status;
        const bool isFirst = (*store.issue(keys.first()))->status == first;
        const auto status = isFirst ? sample(2).status : first;
        times.push_back(timer.press([&] { store.setStatus(status, keys); }));
    }
    return times;
}

/// Waits until the program has created what it creates ahead of its first use.
void passStart()
{
    QEventLoop loop;
    QTimer::singleShot(2s, &loop, &QEventLoop::quit);
    loop.exec();
}

/// The first frame of each part of the main window that is created late, once in a program that has just started.
void measureFirstUses(FrameTable &table)
{
    const QTemporaryDir folder;
    VelmoraApp velmora(outsideWith(siteWith({.issues = 300}), folder.path()));
    if (!velmora.open())
        qFatal("The main window does not open.");
    FrameTimer timer(*velmora.mainWindow());
    passStart();
    auto &store = velmora.store();
    const auto measure = [&](const QString &what, Command command) {
        table.add(u"the first time: "_s + what, {timer.press([&] { store.run(command); })});
        timer.settle();
        timer.send(Qt::Key_Escape, {});
    };
    timer.press(Qt::Key_J, u"j"_s);
    measure(u"Space"_s, Command::Peek);
    measure(u"the palette"_s, Command::TogglePalette);
    measure(u"a new issue"_s, Command::NewIssue);
    measure(u"the board"_s, Command::ShowBoard);
}

void measureList(FrameTable &table, int count)
{
    const QTemporaryDir folder;
    const auto site = siteWith({.issues = count});
    VelmoraApp velmora(outsideWith(site, folder.path()));
    if (!velmora.open())
        qFatal("The main window does not open.");
    auto &window = *velmora.mainWindow();
    FrameTimer timer(window);
    timer.settle();
    auto &store = velmora.store();
    if (store.visibleCount() != count)
        qFatal("%d of %d issues are shown.", store.visibleCount(), count);

    const auto size = QString::number(count) + u" issues: "_s;
    if (isMeasured(u"layouts"_s))
        table.add(size + u"list and board by turns"_s, switches(timer, Qt::Key_2, Qt::Key_1));
    if (!isMeasured(u"lists"_s))
        return;
    table.add(size + u"J moves the focus"_s, pressesOf(timer, presses(), Qt::Key_J, u"j"_s));
    if (store.flatVisibleKeys().indexOf(*store.focusedKey()) < std::min(count, presses()) - 1)
        qFatal("The focus has not moved.");
    table.add(size + u"X checks and unchecks"_s, switches(timer, Qt::Key_X, Qt::Key_X));
    table.add(size + u"a status is set"_s, statusChanges(timer, store));
    table.add(size + u"a list seen before"_s, scopes(timer, store));
    table.add(size + u"a refresh with 10 % changes"_s, refreshes(timer, store, *site));
    itemOf(window.contentItem(), "QQuickTextInput")->forceActiveFocus();
    table.add(size + u"a letter in the search"_s, keystrokes(timer, presses()));
    if (count > 1000)
        table.add(size + u"a step of a scroll"_s, timer.scroll(Steps).times);
}

/// Types the same letters in the palette. Each letter finds issues, actions and projects, and all their rows change.
/// The preceding table row, in which only the text cursor moves, shows the cost of a frame alone.
void measurePalette(FrameTable &table, SiteSize size)
{
    const QTemporaryDir folder;
    VelmoraApp velmora(outsideWith(siteWith(size), folder.path()));
    if (!velmora.open())
        qFatal("The main window does not open.");
    FrameTimer timer(*velmora.mainWindow());
    timer.settle();
    velmora.store().run(Command::TogglePalette);
    timer.settle();
    table.add(u"palette: the caret moves"_s, caretMoves(timer, presses()));
    table.add(u"palette: a letter"_s, keystrokes(timer, presses()));
    if (!velmora.store().palette())
        qFatal("The palette has closed.");
}

} // namespace

int main(int argc, char **argv)
{
    chooseRenderer();
    interpretAtFirst();
    QApplication::setQuitOnLastWindowClosed(false);
    const QApplication application(argc, argv);
    std::optional<FrameTable> table;
    measureEmptyWindow(table, presses());
    if (isMeasured(u"palette"_s))
        measurePalette(*table, {.issues = 10000, .projects = 500});
    if (isMeasured(u"first"_s))
        measureFirstUses(*table);
    // The third argument selects one size.
    const int size = QApplication::arguments().value(3).toInt();
    for (const int count : {300, 10000}) {
        if ((size == 0 || size == count) && (isMeasured(u"layouts"_s) || isMeasured(u"lists"_s)))
            measureList(*table, count);
    }
    // Repeated at the end to show how much the speed of the machine has changed during the run.
    measureEmptyWindow(table, presses());
    return 0;
}
