#pragma once

#include <QList>

#include <optional>

/// The domain record of an optional wire record. `context` is what the mapping needs beside it, such as the present.
template <typename DTO, typename... Context>
auto modelOf(const std::optional<DTO> &wire, const Context &...context)
{
    using Record = decltype(wire->model(context...));
    return wire ? std::optional<Record>(wire->model(context...)) : std::nullopt;
}

/// The domain records of a list of wire records, in its order.
template <typename DTO, typename... Context>
auto modelsOf(const QList<DTO> &wires, const Context &...context)
{
    QList<decltype(wires.first().model(context...))> records;
    records.reserve(wires.size());
    for (const DTO &wire : wires)
        records.append(wire.model(context...));
    return records;
}

/// The same for a list that may be missing, which counts as empty.
template <typename DTO, typename... Context>
auto modelsOf(const std::optional<QList<DTO>> &wires, const Context &...context)
{
    using Records = decltype(modelsOf(*wires, context...));
    return wires ? modelsOf(*wires, context...) : Records();
}
