#pragma once

#include <QtGlobal>

#include <array>
#include <utility>

/// A value that is computed when it is first read and again only when one of its sources has changed.
template <typename T>
struct Memo
{
    /// One number for each source, which grows when the source changes; unused places are 0.
    using Sources = std::array<quint64, 8>;

    T value{};
    /// Grows when the value becomes another one; 0 before the first computation. A source of other memos.
    quint64 version = 0;
    Sources sources{};
    /// How often the value was computed.
    int computations = 0;

    /// This memo with the value that belongs to these states of its sources.
    template <typename Compute>
    const Memo &refreshed(const Sources &present, Compute compute)
    {
        if (version != 0 && sources == present)
            return *this;
        T fresh = compute();
        ++computations;
        sources = present;
        version += version == 0 || !(fresh == value);
        // Also where both are equal: parts that the comparison leaves out may differ.
        value = std::move(fresh);
        return *this;
    }
};
