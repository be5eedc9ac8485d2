#pragma once

#include "demo/DemoSeedRow.h"

#include <span>

namespace DemoSeed {

/// The issues of the demo. A row's place decides who reported it and how old it is, so rows are never reordered.
std::span<const Row> rows();

} // namespace DemoSeed
