#pragma once

#include <QString>

/// The absolute path of a file of this repository; `path` begins at its root, e.g. "tests/cases/markdown".
QString projectFile(const QString &path);
