#pragma once

#include <QList>

#include <algorithm>
#include <type_traits>
#include <utility>
#include <vector>

/// The values, sorted by the keys that `keyOf` returns for them. `keyOf` is called once for each value. The sort is
/// stable.
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
