#pragma once

#include <QList>

#include <algorithm>
#include <utility>
#include <vector>

enum class SortOrder { Ascending, Descending };

/// The values in the order of what `keyOf` gives for each; those with equal keys stay in the order they had. (The
/// library's stable sort is built on a function that the language has given up.)
template <typename T, typename KeyOf>
QList<T> sortedBy(const QList<T> &values, KeyOf keyOf, SortOrder order = SortOrder::Ascending)
{
    using Key = std::decay_t<decltype(keyOf(values.first()))>;
    std::vector<std::pair<Key, qsizetype>> places;
    places.reserve(std::size_t(values.size()));
    for (qsizetype at = 0; at < values.size(); ++at)
        places.emplace_back(keyOf(values[at]), at);
    std::ranges::sort(places, [order](const auto &one, const auto &other) {
        if (one.first == other.first)
            return one.second < other.second;
        return order == SortOrder::Ascending ? one.first < other.first : other.first < one.first;
    });
    QList<T> sorted;
    for (const auto &place : places)
        sorted += values[place.second];
    return sorted;
}
