#pragma once

#include <functional>

/// Processes events until the condition holds. Returns false if it does not hold after ten seconds.
bool runUntil(const std::function<bool()> &condition);
