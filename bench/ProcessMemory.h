#pragma once

#include <QString>

/// A size that the kernel tells of this process, in kilobytes: "Rss" what it has in memory, "Pss" the same with what it
/// shares divided among those that share it. 0 where the kernel tells none.
qint64 processMemory(const QString &name);
