#pragma once

#include <memory>
#include <utility>

/// An immutable value, shared by every list that shows it: copying costs one reference count, and two holders of the
/// same value compare equal without looking inside. Never null. To change a value, copy it out, edit and share anew.
template <typename T>
class Shared
{
public:
    Shared() : Shared(T{}) {}
    Shared(T value) : m_value(std::make_shared<const T>(std::move(value))) {}

    const T &operator*() const { return *m_value; }
    const T *operator->() const { return m_value.get(); }

    /// True when both hold the very same object; cheaper than and implied by neither side of `==` failing.
    bool isSameObject(const Shared &other) const { return m_value == other.m_value; }

    /// Deep equality, skipped where both share one object.
    friend bool operator==(const Shared &a, const Shared &b)
    {
        return a.m_value == b.m_value || *a.m_value == *b.m_value;
    }

private:
    std::shared_ptr<const T> m_value;
};
