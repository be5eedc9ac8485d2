#pragma once

#include <QStringView>

#include <optional>

/// Parses a decimal integer in ASCII digits with an optional leading "+" or "-". Nothing for any other text (including
/// one with blanks) and for a number that does not fit into 64 bits.
std::optional<qint64> parsedInteger(QStringView text);
