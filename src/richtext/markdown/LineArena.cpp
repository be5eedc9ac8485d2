#include "richtext/markdown/LineArena.h"

#include <array>
#include <cmark-gfm.h>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <memory_resource>

namespace {

constexpr std::size_t Alignment = alignof(std::max_align_t);
/// Enough for almost every line; a longer one takes more memory for as long as it is parsed.
constexpr std::size_t UsualSize = 32UL * 1024;

std::pmr::monotonic_buffer_resource &memory()
{
    alignas(Alignment) static std::array<std::byte, UsualSize> usual;
    static std::pmr::monotonic_buffer_resource resource(usual.data(), usual.size());
    return resource;
}

/// Before each object is its size, which is needed to move it.
std::size_t &sizeOf(void *object)
{
    return *reinterpret_cast<std::size_t *>(static_cast<std::byte *>(object) - Alignment);
}

void *allocated(std::size_t size)
{
    std::byte *const place =
        static_cast<std::byte *>(memory().allocate(Alignment + size, Alignment));
    void *const object = place + Alignment;
    sizeOf(object) = size;
    return object;
}

void *zeroed(std::size_t count, std::size_t size) noexcept
{
    if (size > 0 && count > std::numeric_limits<std::ptrdiff_t>::max() / size)
        std::abort();
    return std::memset(allocated(count * size), 0, count * size);
}

void *resized(void *object, std::size_t size) noexcept
{
    if (object && sizeOf(object) >= size)
        return object;
    void *const larger = allocated(size);
    if (object)
        std::memcpy(larger, object, sizeOf(object));
    return larger;
}

void ignored(void *) noexcept {}

} // namespace

Markdown::LineArena::~LineArena()
{
    memory().release();
}

cmark_mem *Markdown::LineArena::functions()
{
    static cmark_mem functions{zeroed, resized, ignored};
    return &functions;
}
