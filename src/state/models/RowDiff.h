#pragma once

#include <QStringView>

#include <vector>

/// `count` rows from `first`.
struct RowRange
{
    int first = 0;
    int count = 0;

    bool operator==(const RowRange &) const = default;
};

/// Adjacent rows that are moved together. `to` is the position of the first of them after the move.
struct RowMove
{
    int first = 0;
    int count = 0;
    int to = 0;

    bool operator==(const RowMove &) const = default;
};

/// The steps that convert one list of keys to another. Removals, moves and insertions are applied one after the other,
/// each in its order. Positions refer to the list as it is when the step is applied.
struct RowDiff
{
    /// In descending order of position.
    std::vector<RowRange> removals;
    std::vector<RowMove> moves;
    /// In ascending order of position; these are the positions in the new list.
    std::vector<RowRange> insertions;

    bool operator==(const RowDiff &) const = default;
};

/// The maximum number of steps of a diff. A view needs quadratic time in the number of steps. If there would be more
/// steps, only the longest runs of kept rows are kept; shorter ones are removed and inserted again.
constexpr int maxRowDiffSteps = 64;

/// The difference of two lists; O(n log n). As few rows move as possible. A row that repeats an earlier key may be
/// removed and inserted again by every diff.
RowDiff rowDiff(const std::vector<QStringView> &before, const std::vector<QStringView> &after);
