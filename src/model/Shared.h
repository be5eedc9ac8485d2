#pragma once

#include <memory>
#include <utility>

/// An immutable value, shared by every list that contains it. Copying it increments a reference count, and two holders
/// of the same object are equal without a comparison of their contents. Never null. To change a value, copy it, edit
/// the copy and share it as a new value.
template <typename T>
class Shared
{
public:
    Shared() : Shared(T{}) {}
    Shared(T value) : m_value(std::make_shared<const T>(std::move(value))) {}

    const T &operator*() const { return *m_value; }
    const T *operator->() const { return m_value.get(); }

    /// True if both hold the same object. This is cheaper than `==`, and when it is true, `==` is true as well.
    bool isSameObject(const Shared &other) const { return m_value == other.m_value; }

    /// Compares the contents, except when both hold the same object.
    friend bool operator==(const Shared &a, const Shared &b)
    {
        return a.m_value == b.m_value || *a.m_value == *b.m_value;
    }

private:
    std::shared_ptr<const T> m_value;
};
