#pragma once

#include <cstdio>
#include <cstdlib>

/// Ends the run as a crash when something that holds for every input does not hold for this one.
inline void promise(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "broken promise: %s\n", what);
    std::abort();
}
