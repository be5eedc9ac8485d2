#pragma once

#include "simulator/Site.h"

#include <optional>

/// Parses a time in a query, in the site's time zone: "2026/10/29 14:32", "2026-10-29", or "-14d" relative to the
/// current time. Nothing for any other text.
std::optional<QDateTime> jqlInstant(const Site &site, const QString &text);
