#pragma once

#include <QtGlobal>

#include <functional>

/// Prepares an input of a given size and returns the work on it, which is measured.
using PreparedWork = std::function<std::function<void()>(qsizetype size)>;

/// Fails if the processor time of the work does not grow in proportion to the size of its input. For an input four times
/// as large, a linear algorithm takes 4 times the time and a quadratic one 16 times; the limit is between the two. Both
/// are measured in turn, and the shortest times count, because caches, the allocator and a busy machine can only
/// lengthen them.
void expectLinear(const PreparedWork &prepare, qsizetype size);
