#pragma once

#include <QString>

/// A memory size of this process as reported by the kernel, in kilobytes. "Rss" is the resident memory; "Pss" is the
/// same with shared memory divided by the number of processes that share it. 0 if the kernel does not report it.
qint64 processMemory(const QString &name);
