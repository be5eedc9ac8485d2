#pragma once

#include <functional>

/// Processes events until the condition holds. Returns false if it does not hold after a minute, which a busy machine
/// needs only for what will never happen.
bool runUntil(const std::function<bool()> &condition);
