#pragma once

#include <functional>

/// Lets events run until the condition holds. False when it still does not after ten seconds.
bool runUntil(const std::function<bool()> &condition);
