#pragma once

#include <utility>

/// The one way to write an observed field: compare, store, notify, in that order, and nothing at all when the values are
/// equal. Gives whether the field changed.
template <typename Owner, typename T>
bool setObserved(Owner *owner, T &field, T value, void (Owner::*notify)())
{
    if (field == value)
        return false;
    field = std::move(value);
    (owner->*notify)();
    return true;
}
