#pragma once

#include <QLoggingCategory>

#include <array>
#include <utility>

/// Logs the name of each value that a `Memo` computes, and "texts" for each issue prepared for the search. Off by default;
/// `QT_LOGGING_RULES="velmora.computation.debug=true"` shows what a key press computes.
Q_DECLARE_LOGGING_CATEGORY(computationLog)

/// A cached value. It is computed when it is first read, and again only when one of its sources has changed.
template <typename T>
struct Memo
{
    /// The version number of each source, which grows when the source changes; unused elements are 0.
    using Sources = std::array<quint64, 8>;

    /// The name in the log must outlive the memo.
    explicit Memo(const char *nameInLog) : name(nameInLog) {}

    const char *name;
    T value{};
    /// Grows when the value changes; 0 before the first computation. Other memos can use it as a source.
    quint64 version = 0;
    Sources sources{};

    /// This memo, with its value computed again if the sources have changed to `present`.
    template <typename Compute>
    const Memo &refreshed(const Sources &present, Compute compute)
    {
        if (version != 0 && sources == present)
            return *this;
        T fresh = compute();
        qCDebug(computationLog, "%s", name);
        sources = present;
        version += version == 0 || !(fresh == value);
        // Assigned even if both are equal, because the comparison may ignore some parts of the value.
        value = std::move(fresh);
        return *this;
    }
};
