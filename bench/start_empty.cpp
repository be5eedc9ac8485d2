// One start of a nearly empty window, of a program that links no more than that takes.

#include "EmptyWindow.h"
#include "FrameWatch.h"
#include "StartReport.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    StartReport report(QGuiApplication::arguments());
    QQmlApplicationEngine engine;
    engine.loadData(emptyWindow());
    const FrameWatch watch(*qobject_cast<QQuickWindow *>(engine.rootObjects().first()),
                           [] { return true; });
    // On a thread of its own, the next frame may be on its way already.
    bool isDone = false;
    const auto finish = [&](qint64 instant) {
        if (std::exchange(isDone, true))
            return;
        report.mark(u"shown"_s, instant);
        report.print(watch.renderer());
        QGuiApplication::quit();
    };
    QObject::connect(&watch, &FrameWatch::swapped, &application, finish);
    return QGuiApplication::exec();
}
