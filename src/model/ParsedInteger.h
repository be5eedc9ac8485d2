#pragma once

#include <QStringView>

#include <optional>

/// The integer that a text spells in decimal ASCII digits, with an optional leading "+" or "-"; nothing for any other
/// text (blanks included) and for a number beyond 64 bits.
std::optional<qint64> parsedInteger(QStringView text);
