#pragma once

#include "demo/DemoSeedRow.h"

#include <span>

namespace DemoSeed {

/// The issues of the demo. The reporter and the age of an issue depend on the index of its row, so rows must not be
/// reordered.
std::span<const Row> rows();

} // namespace DemoSeed
