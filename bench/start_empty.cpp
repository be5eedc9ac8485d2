// Measures one start of a nearly empty window, in a program that links only the libraries needed for it.

#include "EmptyWindow.h"
#include "StartReport.h"
#include "SwapWatch.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    StartReport report(QGuiApplication::arguments());
    QQmlApplicationEngine engine;
    engine.loadData(emptyWindow());
    const SwapWatch watch(*qobject_cast<QQuickWindow *>(engine.rootObjects().first()),
                          [] { return true; });
    // If frames are drawn on another thread, a further frame may already be in progress.
    bool isDone = false;
    const auto finish = [&](qint64 instant) {
        if (std::exchange(isDone, true))
            return;
        report.mark(u"shown"_s, instant);
        report.print(watch.renderer());
        QGuiApplication::quit();
    };
    QObject::connect(&watch, &SwapWatch::swapped, &application, finish);
    return QGuiApplication::exec();
}
