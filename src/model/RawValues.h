#pragma once

#include "model/Enums.h"

#include <QLatin1StringView>
#include <QStringView>

#include <optional>
#include <span>

/// Maps one case of an enumeration to its stored text.
template <typename E>
struct RawValue
{
    E value;
    QLatin1StringView text;
};

/// The stored texts of an enumeration, in the order of its cases. Defined for `ProjectView`, `ActivityRange`,
/// `Ordering`, `Grouping`, `LayoutMode`, `AppearanceMode`, `RowDensity` and `AccentChoice`.
template <typename E>
std::span<const RawValue<E>> rawValues();

/// The text that the preferences store for a case.
template <typename E>
QString rawValue(E value)
{
    for (const auto &row : rawValues<E>()) {
        if (row.value == value)
            return row.text;
    }
    return {};
}

/// The case for a stored text; nothing if no case has this text.
template <typename E>
std::optional<E> fromRawValue(QStringView text)
{
    for (const auto &row : rawValues<E>()) {
        if (row.text == text)
            return row.value;
    }
    return std::nullopt;
}
