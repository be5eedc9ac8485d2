// Measures whether the memory grows during a day of use. In the demo, with the program's clock turned instead of waited
// for, issues are opened beside the list, the list is refreshed, and windows of issues are opened and closed.

#include "BenchSite.h"
#include "FrameTimer.h"
#include "ProcessMemory.h"
#include "app/Interpreter.h"
#include "app/Renderer.h"
#include "app/VelmoraApp.h"
#include "demo/DemoService.h"
#include "platform/decoding/Decoders.h"
#include "platform/decoding/helper/DecodeMain.h"
#include "support/ManualClock.h"
#include "support/ObjectCensus.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>
#include <malloc.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// A round is twenty openings and one refresh. Two of five rounds also open a window.
constexpr int Rounds = 500;
constexpr int OpeningsPerRound = 20;
/// In every tenth part of the day, the state is recorded.
constexpr int Parts = 10;
constexpr auto LengthOfDay = 24h;
/// Longer than any response of the demo takes.
constexpr auto LongestResponse = 250ms;
/// The responses for an issue follow each other: the issue, its comments, the choices of its pickers.
constexpr int ResponsesInTurn = 3;
/// Longer than any toast stays.
constexpr auto LongestToast = 30s;

/// What the process holds at one moment.
struct State
{
    /// Bytes that were allocated and not freed.
    double allocated = 0;
    /// Bytes in RAM.
    double resident = 0;
    int objects = 0;
    /// Timers of Qt and of the program's clock.
    int timers = 0;
    int descriptors = 0;
    int windows = 0;
    QMap<QByteArray, int> classes;
};

class Day
{
public:
    Day(VelmoraApp &velmora, ManualClock &clock, const ObjectCensus &census)
        : m_velmora(velmora), m_clock(clock), m_census(census), m_timer(*velmora.mainWindow())
    {
    }

    QString renderer() const { return m_timer.renderer(); }
    int windows() const { return m_windows; }
    void runRound(int round, std::chrono::milliseconds duration);
    /// The state after everything that was opened is closed again and all work is done.
    State settled();

private:
    void press(Qt::Key key, const QString &text = {});
    void respond();
    void walk();
    void openWindow();

    VelmoraApp &m_velmora;
    ManualClock &m_clock;
    const ObjectCensus &m_census;
    FrameTimer m_timer;
    int m_windows = 0;
    bool m_isWalkingUp = false;
};

/// Delivers what is queued. Objects that were to be deleted later are deleted as by the program's own event loop, which
/// does not run here.
void deliverEvents()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// Draws a window, and waits until it is on the display.
void draw(QQuickWindow &window)
{
    QEventLoop loop;
    QObject::connect(&window, &QQuickWindow::frameSwapped, &loop, &QEventLoop::quit);
    // An object, because a single shot would go on after the frame, and would be counted.
    QTimer limit;
    QObject::connect(&limit, &QTimer::timeout, &loop, [] { qFatal("The window draws no frame."); });
    limit.start(5s);
    window.update();
    loop.exec();
}

int descriptors()
{
    return int(QDir(u"/proc/self/fd"_s).entryList(QDir::Files | QDir::System).size());
}

void Day::press(Qt::Key key, const QString &text)
{
    m_timer.send(key, text);
}

void Day::respond()
{
    for (int turn = 0; turn < ResponsesInTurn; ++turn) {
        deliverEvents();
        m_clock.advance(LongestResponse);
    }
    deliverEvents();
}

/// Opens the next issue of the list, down to its end, then up to its start, and so on.
void Day::walk()
{
    auto &store = m_velmora.store();
    const auto before = store.focusedKey();
    press(m_isWalkingUp ? Qt::Key_Up : Qt::Key_Down);
    if (store.focusedKey() == before) {
        m_isWalkingUp = !m_isWalkingUp;
        press(m_isWalkingUp ? Qt::Key_Up : Qt::Key_Down);
    }
    if (!store.showInspector())
        press(Qt::Key_Space, u" "_s);
    if (store.focusedKey() == before || store.inspectorKey() != store.focusedKey())
        qFatal("No further issue is open.");
    respond();
    draw(*m_velmora.mainWindow());
}

void Day::openWindow()
{
    const QString key = *m_velmora.store().focusedKey();
    m_velmora.scenes().showIssue(key);
    respond();
    draw(*m_velmora.scenes().issueWindow(key));
    m_velmora.scenes().issueWindow(key)->close();
    deliverEvents();
    ++m_windows;
}

void Day::runRound(int round, std::chrono::milliseconds duration)
{
    const QDateTime end = m_clock.now().addMSecs(duration.count());
    for (int opening = 0; opening < OpeningsPerRound; ++opening)
        walk();
    m_velmora.store().run(Command::Reload);
    respond();
    if (round % 5 < 2)
        openWindow();
    press(Qt::Key_Space, u" "_s);
    m_clock.advance(std::chrono::milliseconds(m_clock.now().msecsTo(end)));
    respond();
    draw(*m_velmora.mainWindow());
}

State Day::settled()
{
    m_velmora.store().run(Command::MoveToFirst);
    do {
        m_clock.advance(LongestToast);
        deliverEvents();
        m_timer.settle();
    } while (Decoders::shared().pendingCount() > 0);
    Decoders::shared().endHelpers();
    m_timer.settle();
    qmlEngine(m_velmora.mainWindow())->collectGarbage();
    deliverEvents();
    const auto heap = mallinfo2();
    return {.allocated = double(heap.uordblks + heap.hblkhd),
            .resident = double(processMemory(u"Rss"_s)) * 1024,
            .objects = m_census.count(),
            .timers = m_census.timers() + m_clock.pending(),
            .descriptors = descriptors(),
            .windows = int(QGuiApplication::topLevelWindows().size()),
            .classes = m_census.countsByClass()};
}

void print(const QString &what, const State &state)
{
    std::printf("%-28s %10.2f %8.1f %8d %7d %12d %8d\n", qUtf8Printable(what),
                state.allocated / 1024 / 1024, state.resident / 1024 / 1024, state.objects,
                state.timers, state.descriptors, state.windows);
    std::fflush(stdout);
}

/// Prints the growth, and the classes with more objects than before.
void printGrowth(const State &before, const State &after)
{
    const auto percent = [](double from, double to) { return (to / from - 1) * 100; };
    std::printf("%-28s %8.2f %% %6.1f %% %+8d %+7d %+12d %+8d\n", "growth",
                percent(before.allocated, after.allocated),
                percent(before.resident, after.resident), after.objects - before.objects,
                after.timers - before.timers, after.descriptors - before.descriptors,
                after.windows - before.windows);
    for (const auto &[name, count] : after.classes.asKeyValueRange()) {
        if (const int more = count - before.classes.value(name); more > 0)
            std::printf("  %d more %s\n", more, name.constData());
    }
}

void measure(Day &day, int rounds)
{
    const auto duration = std::chrono::milliseconds(LengthOfDay) / rounds;
    for (int round = 0; round < rounds / Parts; ++round)
        day.runRound(round, duration);
    const State before = day.settled();
    std::printf("%s: %d openings, %d refreshes, %d windows for the warm-up\n",
                qUtf8Printable(day.renderer()), rounds / Parts * OpeningsPerRound, rounds / Parts,
                day.windows());
    std::printf("%-28s %10s %8s %8s %7s %12s %8s\n", "", "heap (MB)", "RSS (MB)", "objects",
                "timers", "descriptors", "windows");
    print(u"after the warm-up"_s, before);
    State after;
    const int windowsBefore = day.windows();
    for (int round = 0; round < rounds; ++round) {
        day.runRound(round, duration);
        if ((round + 1) % (rounds / Parts) != 0)
            continue;
        after = day.settled();
        print(u"%1 openings, %2 windows"_s.arg((round + 1) * OpeningsPerRound)
                  .arg(day.windows() - windowsBefore),
              after);
    }
    printGrowth(before, after);
}

} // namespace

int main(int argc, char **argv)
{
    if (const auto code = decodeIfAsked(argc, argv))
        return *code;
    const ObjectCensus census;
    chooseRenderer();
    interpretAtFirst();
    QApplication::setQuitOnLastWindowClosed(false);
    const QApplication application(argc, argv);
    const int given = QApplication::arguments().value(1).toInt();
    const QTemporaryDir folder;
    Outside outside = outsideWith({}, folder.path());
    auto ownClock = std::make_unique<ManualClock>();
    ManualClock &clock = *ownClock;
    outside.clock = std::move(ownClock);
    outside.makeDemo = [&folder](Clock &time, const SystemCalendar &calendar) {
        auto sources = DemoSources::system();
        sources.folder = folder.filePath(u"demo"_s);
        return std::make_shared<DemoService>(time, calendar, sources);
    };
    VelmoraApp velmora(std::move(outside));
    if (!velmora.open())
        return 1;
    Day day(velmora, clock, census);
    day.settled();
    if (velmora.store().visibleCount() == 0)
        qFatal("The demo shows no issue.");
    measure(day, given > 0 ? std::max(given, Parts) : Rounds);
    return 0;
}
