#include "state/models/RowDiff.h"

#include "derivation/KeyIndex.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace {

constexpr int absent = -1;

/// Rows that are adjacent in both lists.
struct KeptRun
{
    int before = 0;
    int after = 0;
    int count = 0;
};

/// Keys of the same object have the same memory, and need not be read.
bool isSameKey(QStringView a, QStringView b)
{
    return a.size() == b.size() && (a.data() == b.data() || a == b);
}

/// Rows that have no counterpart yet.
struct Unmatched
{
    std::vector<int> before;
    std::vector<int> after;
};

/// Walks through both lists at once and enters the earlier row of each row in `rows`, as long as the lists differ by
/// single rows that are in only one of them at that place. Most lists consist of long equal parts, for which this is
/// much faster than a look-up of each key. Returns the other rows.
Unmatched matchNeighbours(const std::vector<QStringView> &before,
                          const std::vector<QStringView> &after, std::vector<int> &rows)
{
    const auto countBefore = int(before.size());
    const auto countAfter = int(after.size());
    Unmatched left;
    int from = 0;
    int to = 0;
    const auto isPair = [&](int a, int b) {
        return a < countBefore && b < countAfter && isSameKey(before[a], after[b]);
    };
    while (from < countBefore && to < countAfter) {
        if (isPair(from, to)) {
            rows[to++] = from++;
            continue;
        }
        const bool isExtra = isPair(from, to + 1);
        const bool isReplaced = !isExtra && isPair(from + 1, to + 1);
        if (!isExtra && !isReplaced && !isPair(from + 1, to))
            break;
        if (!isExtra)
            left.before.push_back(from++);
        if (isExtra || isReplaced)
            left.after.push_back(to++);
    }
    for (; from < countBefore; ++from)
        left.before.push_back(from);
    for (; to < countAfter; ++to)
        left.after.push_back(to);
    return left;
}

/// For each row of `after` its row in `before`, or `absent`; each row of `before` is used at most once.
std::vector<int> earlierRows(const std::vector<QStringView> &before,
                             const std::vector<QStringView> &after)
{
    std::vector<int> rows(after.size(), absent);
    auto left = matchNeighbours(before, after, rows);
    std::vector<QStringView> keys;
    keys.reserve(left.before.size());
    for (const int row : left.before)
        keys.push_back(before[row]);
    const KeyIndex index(std::move(keys));
    for (const int to : left.after) {
        const auto found = index.find(after[to]);
        if (found)
            rows[to] = std::exchange(left.before[*found], absent);
    }
    return rows;
}

/// The positions of a longest increasing subsequence of the values that are not `absent`.
std::vector<int> longestIncreasing(const std::vector<int> &values)
{
    std::vector<int> ends;
    std::vector<int> previous(values.size(), absent);
    for (int at = 0; at < int(values.size()); ++at) {
        if (values[at] == absent)
            continue;
        const auto isSmaller = [&values](int position, int value) {
            return values[position] < value;
        };
        // Most values are greater than all before them.
        const bool isLast = ends.empty() || values[ends.back()] < values[at];
        const auto place =
            isLast ? ends.end() : std::lower_bound(ends.begin(), ends.end(), values[at], isSmaller);
        previous[at] = place == ends.begin() ? absent : *std::prev(place);
        if (place == ends.end())
            ends.push_back(at);
        else
            *place = at;
    }
    std::vector<int> chosen(ends.size());
    int at = ends.empty() ? absent : ends.back();
    for (auto slot = chosen.rbegin(); slot != chosen.rend(); ++slot, at = previous[at])
        *slot = at;
    return chosen;
}

/// The runs of rows for which `isInRange` holds.
template <typename Predicate>
std::vector<RowRange> rangesWhere(int count, Predicate isInRange)
{
    std::vector<RowRange> ranges;
    for (int row = 0; row < count; ++row) {
        if (!isInRange(row))
            continue;
        if (!ranges.empty() && ranges.back().first + ranges.back().count == row)
            ++ranges.back().count;
        else
            ranges.push_back({row, 1});
    }
    return ranges;
}

std::vector<RowRange> removedRanges(int countBefore, const std::vector<int> &earlier)
{
    std::vector<bool> stays(countBefore, false);
    for (const int row : earlier) {
        if (row != absent)
            stays[row] = true;
    }
    auto ranges = rangesWhere(countBefore, [&stays](int row) { return !stays[row]; });
    std::reverse(ranges.begin(), ranges.end());
    return ranges;
}

/// The kept rows in new order, each as its position among the kept rows in old order.
std::vector<int> permutation(int countBefore, const std::vector<int> &earlier)
{
    std::vector<int> kept;
    std::copy_if(earlier.begin(), earlier.end(), std::back_inserter(kept),
                 [](int row) { return row != absent; });
    std::vector<int> positions(countBefore, 0);
    for (const int row : kept)
        positions[row] = 1;
    std::exclusive_scan(positions.begin(), positions.end(), positions.begin(), 0);
    for (auto &row : kept)
        row = positions[row];
    return kept;
}

/// The ranges of the new order that must be moved: rows outside the longest increasing subsequence. Rows that are
/// adjacent in both orders share a range.
std::vector<RowRange> movingRanges(const std::vector<int> &order)
{
    std::vector<bool> moves(order.size(), true);
    for (const int position : longestIncreasing(order))
        moves[position] = false;
    std::vector<RowRange> ranges;
    for (int at = 0; at < int(order.size()); ++at) {
        if (!moves[at])
            continue;
        const bool goesOn = !ranges.empty() && ranges.back().first + ranges.back().count == at &&
                            order[at] == order[at - 1] + 1;
        if (goesOn)
            ++ranges.back().count;
        else
            ranges.push_back({at, 1});
    }
    return ranges;
}

/// Carries out one move on a list of numbers.
void applyMove(std::vector<int> &list, const RowMove &move)
{
    const auto begin = list.begin();
    if (move.to < move.first)
        std::rotate(begin + move.to, begin + move.first, begin + move.first + move.count);
    else
        std::rotate(begin + move.first, begin + move.first + move.count,
                    begin + move.to + move.count);
}

/// The moves that place each range after the row that precedes it in the new order, from first to last.
std::vector<RowMove> movesFor(const std::vector<int> &order, const std::vector<RowRange> &ranges)
{
    std::vector<int> list(order.size());
    std::iota(list.begin(), list.end(), 0);
    std::vector<RowMove> moves;
    for (const auto &range : ranges) {
        const auto rowOf = [&list](int value) {
            return int(std::find(list.begin(), list.end(), value) - list.begin());
        };
        const int from = rowOf(order[range.first]);
        const int behind = range.first == 0 ? 0 : rowOf(order[range.first - 1]) + 1;
        const RowMove move{from, range.count, behind > from ? behind - range.count : behind};
        if (move.to == move.first)
            continue;
        applyMove(list, move);
        moves.push_back(move);
    }
    return moves;
}

/// The rows that keep their order, as runs that are adjacent in both lists.
std::vector<KeptRun> keptRuns(const std::vector<int> &earlier)
{
    std::vector<KeptRun> runs;
    for (const int after : longestIncreasing(earlier)) {
        const int before = earlier[after];
        const bool goesOn = !runs.empty() && runs.back().after + runs.back().count == after &&
                            runs.back().before + runs.back().count == before;
        if (goesOn)
            ++runs.back().count;
        else
            runs.push_back({before, after, 1});
    }
    return runs;
}

/// The longest runs, in their order: as many as `maxRowDiffSteps` allows.
std::vector<KeptRun> longestRuns(std::vector<KeptRun> runs)
{
    constexpr std::size_t most = maxRowDiffSteps / 2 - 1;
    if (runs.size() <= most)
        return runs;
    const auto isLonger = [](const KeptRun &a, const KeptRun &b) { return a.count > b.count; };
    std::nth_element(runs.begin(), runs.begin() + most, runs.end(), isLonger);
    runs.resize(most);
    std::sort(runs.begin(), runs.end(),
              [](const KeptRun &a, const KeptRun &b) { return a.after < b.after; });
    return runs;
}

/// A diff that replaces all rows between the longest kept runs.
RowDiff coarseDiff(int countBefore, const std::vector<int> &earlier)
{
    RowDiff diff;
    auto runs = longestRuns(keptRuns(earlier));
    runs.push_back({countBefore, int(earlier.size()), 0});
    int before = 0;
    int after = 0;
    for (const auto &run : runs) {
        if (run.before > before)
            diff.removals.push_back({before, run.before - before});
        if (run.after > after)
            diff.insertions.push_back({after, run.after - after});
        before = run.before + run.count;
        after = run.after + run.count;
    }
    std::reverse(diff.removals.begin(), diff.removals.end());
    return diff;
}

} // namespace

RowDiff rowDiff(const std::vector<QStringView> &before, const std::vector<QStringView> &after)
{
    const auto earlier = earlierRows(before, after);
    RowDiff diff;
    diff.removals = removedRanges(int(before.size()), earlier);
    diff.insertions =
        rangesWhere(int(after.size()), [&earlier](int row) { return earlier[row] == absent; });
    const auto order = permutation(int(before.size()), earlier);
    const auto moving = movingRanges(order);
    if (diff.removals.size() + diff.insertions.size() + moving.size() >
        std::size_t(maxRowDiffSteps))
        return coarseDiff(int(before.size()), earlier);
    diff.moves = movesFor(order, moving);
    return diff;
}
