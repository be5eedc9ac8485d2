#pragma once

#include <QCoro/QCoroTask>

/// Starts a task that nobody awaits. It runs until it ends, even if the caller is destroyed. `Cancelled` and
/// `OwnerGone` end it silently. Any other exception is a programming error, because the task should have handled it. It
/// is reported on stderr in debug builds and ignored otherwise, so that a failed background task does not end the
/// program.
void spawn(QCoro::Task<> task);
