#pragma once

#include <cstdio>
#include <cstdlib>

/// Aborts the process if a property that must hold for every input does not hold for this one.
inline void promise(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "broken promise: %s\n", what);
    std::abort();
}
