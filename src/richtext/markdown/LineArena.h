#pragma once

struct cmark_mem;

namespace Markdown {

/// The memory for the library while it parses one line, freed as a whole. The library allocates every node and text
/// separately, which takes longer than its parsing.
///
/// All objects share one memory: at most one may exist at any time. The library's objects must not be used after it.
class LineArena
{
public:
    LineArena() = default;
    /// Frees everything that the library has allocated.
    ~LineArena();
    LineArena(const LineArena &) = delete;
    LineArena &operator=(const LineArena &) = delete;

    /// The functions with which the library allocates. Freeing a single object has no effect. Running out of memory ends
    /// the program, as it does with the library's own functions.
    static cmark_mem *functions();
};

} // namespace Markdown
