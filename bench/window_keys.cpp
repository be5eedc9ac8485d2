// From a key press to the frame that shows what it did: in a nearly empty window, and in the main window on lists of
// made-up issues. All in one process, so that the ratios hold on any machine.

#include "BenchIssues.h"
#include "BenchSite.h"
#include "EmptyWindow.h"
#include "FrameTable.h"
#include "FrameTimer.h"
#include "app/Interpreter.h"
#include "app/Renderer.h"
#include "app/VelmoraApp.h"
#include "async/Spawn.h"

#include <QApplication>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

constexpr int Steps = 180;
/// How often what redraws the whole window is done.
constexpr int Turns = 40;

/// How often each key is pressed: the first argument.
int presses()
{
    const auto given = QApplication::arguments().value(1).toInt();
    return given > 0 ? given : 300;
}

/// With a second argument nothing but the part of that name is measured: "palette", "layouts" (list
/// and board by turns), "lists" (all else).
bool isMeasured(const QString &part)
{
    const auto only = QApplication::arguments().value(2);
    return only.isEmpty() || only == part;
}

QQuickItem *itemOf(QQuickItem *root, const char *kind)
{
    if (root->inherits(kind))
        return root;
    for (auto *child : root->childItems()) {
        if (auto *found = itemOf(child, kind))
            return found;
    }
    return nullptr;
}

std::vector<qint64> pressesOf(FrameTimer &timer, int count)
{
    std::vector<qint64> times;
    times.reserve(std::size_t(count));
    for (int i = 0; i < count; ++i)
        times.push_back(timer.press(Qt::Key_J, u"j"_s));
    return times;
}

/// A letter that every issue has and its removal, one that few have and its removal, and so on.
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

/// The caret alone moves: a frame of the same window in which no row changes.
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

/// Every tenth issue has another summary, status and time than the turn before.
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
        const auto time = timer.answer([&] { store.select(scope); });
        // The first two are seen for the first time.
        if (turn > 1)
            times.push_back(time);
    }
    return times;
}

/// By turns: every other press undoes the one before.
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
        times.push_back(timer.answer([&] { store.setStatus(status, keys); }));
    }
    return times;
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
    table.add(size + u"J moves the focus"_s, pressesOf(timer, presses()));
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

/// The same letters in the palette: each finds issues, actions and projects, and the rows of all of them change. A frame
/// costs what the window costs; what a letter costs beyond that, the row before tells.
void measurePalette(FrameTable &table, SiteSize size)
{
    const QTemporaryDir folder;
    VelmoraApp velmora(outsideWith(siteWith(size), folder.path()));
    if (!velmora.open())
        qFatal("The main window does not open.");
    FrameTimer timer(*velmora.mainWindow());
    timer.settle();
    velmora.store().togglePalette();
    timer.settle();
    table.add(u"palette: the caret moves"_s, caretMoves(timer, presses()));
    table.add(u"palette: a letter"_s, keystrokes(timer, presses()));
    if (!velmora.store().palette())
        qFatal("The palette has closed.");
}

void measureEmptyWindow(std::optional<FrameTable> &table)
{
    QQmlApplicationEngine engine;
    engine.loadData(emptyWindow());
    FrameTimer timer(*qobject_cast<QQuickWindow *>(engine.rootObjects().first()));
    timer.settle();
    const auto times = pressesOf(timer, presses());
    if (!table)
        table.emplace(timer.renderer());
    table->add(u"nearly empty window"_s, times);
}

} // namespace

int main(int argc, char **argv)
{
    chooseRenderer();
    interpretAtFirst();
    QApplication::setQuitOnLastWindowClosed(false);
    const QApplication application(argc, argv);
    std::optional<FrameTable> table;
    measureEmptyWindow(table);
    if (isMeasured(u"palette"_s))
        measurePalette(*table, {.issues = 10000, .projects = 500});
    if (isMeasured(u"layouts"_s) || isMeasured(u"lists"_s)) {
        measureList(*table, 300);
        measureList(*table, 10000);
    }
    // Once more, to tell how far the machine itself has changed meanwhile.
    measureEmptyWindow(table);
    return 0;
}
