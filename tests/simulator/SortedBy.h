#pragma once

#include <QList>

#include <algorithm>
#include <utility>
#include <vector>

enum class SortOrder { Ascending, Descending };

/// The values sorted by the keys that `keyOf` returns; values with equal keys keep their order. (The standard library's
/// stable sort uses a deprecated function.)
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
