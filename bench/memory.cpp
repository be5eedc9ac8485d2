// Measures the memory that Velmora uses once its list is displayed. With a number as its argument, it uses a fictitious
// site with that many issues; without an argument, the demo.

#include "BenchSite.h"
#include "FrameTimer.h"
#include "ProcessMemory.h"
#include "app/Interpreter.h"
#include "app/Renderer.h"
#include "app/VelmoraApp.h"

#include <QApplication>
#include <QTemporaryDir>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

Outside outsideFor(int issues, const QString &folder)
{
    Outside outside = outsideWith(siteWith({.issues = std::max(issues, 20)}), folder);
    if (issues == 0)
        outside.makeDemo = Outside::system().makeDemo;
    return outside;
}

double megabytes(const QString &name)
{
    return double(processMemory(name)) / 1024;
}

} // namespace

int main(int argc, char **argv)
{
    chooseRenderer();
    interpretAtFirst();
    const QApplication application(argc, argv);
    const auto issues = QApplication::arguments().value(1).toInt();
    const QTemporaryDir folder;
    VelmoraApp velmora(outsideFor(issues, folder.path()));
    if (!velmora.open())
        return 1;
    FrameTimer timer(*velmora.mainWindow());
    timer.settle();
    const int shown = velmora.store().visibleCount();
    if (issues > 0 ? shown != issues : shown == 0)
        qFatal("%d of %d issues are shown.", shown, issues);
    std::printf("%6d issues shown (%s): RSS %.1f MB, PSS %.1f MB\n", shown,
                qUtf8Printable(timer.renderer()), megabytes(u"Rss"_s), megabytes(u"Pss"_s));
    return 0;
}
