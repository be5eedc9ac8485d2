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

/// Rows that change place together. `to` is where the first of them stands afterwards.
struct RowMove
{
    int first = 0;
    int count = 0;
    int to = 0;

    bool operator==(const RowMove &) const = default;
};

/// How to get from one list of keys to another. The three families are applied one after the other, each in its order;
/// a position is that of the list as it stands when the step is applied.
struct RowDiff
{
    /// From the bottom up.
    std::vector<RowRange> removals;
    std::vector<RowMove> moves;
    /// From the top down: the positions in the new list.
    std::vector<RowRange> insertions;

    bool operator==(const RowDiff &) const = default;
};

/// The most steps that a diff has. A view works through the changes of one event in time quadratic in their number; past
/// this bound short stretches of kept rows are given up and replaced with what surrounds them, the longest ones stay.
constexpr int maxRowDiffSteps = 64;

/// The difference of two lists; O(n log n). As few rows move as possible. A row that repeats an earlier key counts as a
/// row of its own, which goes and comes with every diff.
RowDiff rowDiff(const std::vector<QStringView> &before, const std::vector<QStringView> &after);
