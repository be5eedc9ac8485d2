#pragma once

#include <QList>

#include <optional>

/// Converts an optional wire record to its domain record. `context` contains further arguments of the conversion, such
/// as the current time.
template <typename DTO, typename... Context>
auto modelOf(const std::optional<DTO> &wire, const Context &...context)
{
    using Record = decltype(wire->model(context...));
    return wire ? std::optional<Record>(wire->model(context...)) : std::nullopt;
}

/// Converts a list of wire records to domain records, in the same order.
template <typename DTO, typename... Context>
auto modelsOf(const QList<DTO> &wires, const Context &...context)
{
    QList<decltype(wires.first().model(context...))> records;
    records.reserve(wires.size());
    for (const DTO &wire : wires)
        records.append(wire.model(context...));
    return records;
}

/// The same for a list that may be missing, which gives an empty list.
template <typename DTO, typename... Context>
auto modelsOf(const std::optional<QList<DTO>> &wires, const Context &...context)
{
    using Records = decltype(modelsOf(*wires, context...));
    return wires ? modelsOf(*wires, context...) : Records();
}
