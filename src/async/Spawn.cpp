#include "async/Spawn.h"

#include "async/WhileAlive.h"
#include "model/Failure.h"

#include <QtGlobal>

namespace {

QCoro::Task<> runToItsEnd(QCoro::Task<> task)
{
    try {
        co_await task;
        // NOLINTBEGIN(bugprone-empty-catch): the task was cancelled or its owner is gone
    } catch (const Cancelled &) {
    } catch (const OwnerGone &) {
        // NOLINTEND(bugprone-empty-catch)
    } catch (const std::exception &stray) {
#ifndef QT_NO_DEBUG
        qWarning("A background task ended with a failure that nobody handles: %s", stray.what());
#else
        Q_UNUSED(stray)
#endif
    }
}

} // namespace

void spawn(QCoro::Task<> task)
{
    // A QCoro task continues when its handle is destroyed; the coroutine above owns the task until it ends.
    runToItsEnd(std::move(task));
}
