#pragma once

#include <QList>

#include <algorithm>
#include <type_traits>
#include <utility>
#include <vector>

/// The values in the order of the keys that `keyOf` makes of them, each key made once; equal keys keep their order.
template <typename T, typename KeyOf>
QList<T> sortedByKey(const QList<T> &values, KeyOf keyOf)
{
    using Key = std::decay_t<std::invoke_result_t<KeyOf, const T &>>;
    std::vector<std::pair<Key, qsizetype>> places;
    places.reserve(values.size());
    for (const auto &value : values)
        places.emplace_back(keyOf(value), qsizetype(places.size()));
    std::sort(places.begin(), places.end());
    QList<T> sorted;
    sorted.reserve(values.size());
    for (const auto &[key, from] : places)
        sorted.append(values[from]);
    return sorted;
}
