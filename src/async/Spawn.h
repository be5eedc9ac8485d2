#pragma once

#include <QCoro/QCoroTask>

/// Runs a task that nobody awaits, to its end, whatever becomes of the caller. `Cancelled` and `OwnerGone` end it
/// silently. Any other exception is a fault of the task, which should have handled it: it is reported on stderr in
/// debug builds and swallowed otherwise, because a lost background task must not take the window with it.
void spawn(QCoro::Task<> task);
