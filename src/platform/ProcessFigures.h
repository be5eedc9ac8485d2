#pragma once

#include <QtGlobal>

#include <chrono>
#include <optional>

/// What the operating system knows of the running process. Nothing if the system does not say it.
namespace ProcessFigures {

/// The time since the process was started, before the libraries were loaded. Linux counts it in steps of 10 ms.
std::optional<std::chrono::milliseconds> age();

/// The memory of the process that is in RAM, in bytes, including what it shares with others.
std::optional<qint64> residentBytes();

} // namespace ProcessFigures
