#pragma once

#include <QCoro/QCoroTask>
#include <QUrl>

/// Writes a copy of a local file to a place, and replaces the file that is there, if any. The old file is replaced only
/// once the copy is complete, so it survives every failure, and nothing half-written is left. Runs outside the caller's
/// thread. Fails with a `Failure` that names the file and the reason.
QCoro::Task<> storeCopy(QUrl source, QUrl place);
