#include "support/ObjectCensus.h"

#include <QAbstractEventDispatcher>
#include <QObject>
#include <QSet>
#include <QThread>

#include <mutex>
#include <private/qhooks_p.h>

namespace {

/// Guards the objects below, because every thread reports its own.
std::mutex recordedMutex;

QSet<QObject *> &recorded()
{
    static QSet<QObject *> objects;
    return objects;
}

void recordObject(QObject *object)
{
    const std::lock_guard lock(recordedMutex);
    recorded().insert(object);
}

void forgetObject(QObject *object)
{
    const std::lock_guard lock(recordedMutex);
    recorded().remove(object);
}

/// Calls a function with each object of this thread. An object of another thread may be destroyed at the same time.
void forEachHere(const auto &use)
{
    const std::lock_guard lock(recordedMutex);
    for (QObject *object : std::as_const(recorded())) {
        if (object->thread() == QThread::currentThread())
            use(object);
    }
}

/// "IssueRow" for "IssueRow_QMLTYPE_12".
QByteArray withoutNumber(const QByteArray &className)
{
    const auto at = className.indexOf("_QML");
    return at > 0 ? className.first(at) : className;
}

} // namespace

ObjectCensus::ObjectCensus()
{
    qtHookData[QHooks::AddQObject] = quintptr(&recordObject);
    qtHookData[QHooks::RemoveQObject] = quintptr(&forgetObject);
}

ObjectCensus::~ObjectCensus()
{
    qtHookData[QHooks::AddQObject] = 0;
    qtHookData[QHooks::RemoveQObject] = 0;
    const std::lock_guard lock(recordedMutex);
    recorded().clear();
}

QMap<QByteArray, int> ObjectCensus::countsByClass() const
{
    QMap<QByteArray, int> counts;
    forEachHere(
        [&counts](QObject *object) { ++counts[withoutNumber(object->metaObject()->className())]; });
    return counts;
}

int ObjectCensus::count() const
{
    int count = 0;
    forEachHere([&count](QObject *) { ++count; });
    return count;
}

int ObjectCensus::timers() const
{
    const auto *dispatcher = QAbstractEventDispatcher::instance();
    qsizetype count = 0;
    forEachHere([&](QObject *object) { count += dispatcher->registeredTimers(object).size(); });
    return int(count);
}
