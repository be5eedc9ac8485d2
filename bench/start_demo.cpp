// Measures one start of Velmora with the demo, until the first frame that displays issues. Arguments: the time of the
// start, a file of preferences, and "instant" if the demo should respond immediately.

#include "BenchClock.h"
#include "StartReport.h"
#include "SwapWatch.h"
#include "app/Interpreter.h"
#include "app/Renderer.h"
#include "app/VelmoraApp.h"

#include <QApplication>
#include <QQuickItem>

using namespace Qt::StringLiterals;

namespace {

Outside outside(const QStringList &arguments)
{
    auto outside = Outside::system();
    outside.preferences = std::make_unique<Preferences>(arguments.value(2));
    if (arguments.value(3) == u"instant"_s)
        outside.clock = std::make_unique<BenchClock>();
    return outside;
}

bool holdsRow(const QQuickItem &item)
{
    return QByteArrayView(item.metaObject()->className()).startsWith("IssueRow_") ||
           std::ranges::any_of(item.childItems(),
                               [](const QQuickItem *child) { return holdsRow(*child); });
}

} // namespace

int main(int argc, char **argv)
{
    chooseRenderer();
    interpretAtFirst();
    const QApplication application(argc, argv);
    const auto arguments = QApplication::arguments();
    StartReport report(arguments);
    report.mark(u"application"_s);
    VelmoraApp velmora(outside(arguments));
    report.mark(u"store"_s);
    if (!velmora.open())
        return 1;
    report.mark(u"loaded"_s);
    auto &window = *velmora.mainWindow();
    const SwapWatch watch(window, [&window] { return holdsRow(*window.contentItem()); });
    // If frames are drawn on another thread, a further frame may already be in progress.
    bool isDone = false;
    const auto onFrame = [&](qint64 instant, bool hasRows) {
        report.mark(u"firstFrame"_s, instant);
        if (!hasRows || isDone)
            return;
        isDone = true;
        report.mark(u"shown"_s, instant);
        report.print(watch.renderer());
        QApplication::quit();
    };
    QObject::connect(&watch, &SwapWatch::swapped, &application, onFrame);
    return QApplication::exec();
}
