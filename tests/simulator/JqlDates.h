#pragma once

#include "simulator/Site.h"

#include <optional>

/// The instant that a query names, in the site's zone: "2026/10/29 14:32", "2026-10-29", or "-14d", counted from now.
/// Nothing for any other text.
std::optional<QDateTime> jqlInstant(const Site &site, const QString &text);
