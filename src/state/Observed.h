#pragma once

#include "state/Batched.h"

#include <QtGlobal>

#include <type_traits>
#include <utility>

/// A field with change notification. Every write compares the values, stores the new one, marks the derived values as
/// out of date and emits the signal, in that order. It does nothing if the values are equal.
template <typename Owner, typename T>
class Observed
{
public:
    using Notify = void (Owner::*)();

    /// `stale` are the flags of the values that the owner, a `Batched`, derives from this field.
    Observed(Owner *owner, Notify notify, unsigned stale = 0, T value = {})
        : m_owner(owner), m_notify(notify), m_stale(stale), m_value(std::move(value))
    {
    }
    Observed(const Observed &) = delete;
    Observed &operator=(const Observed &) = delete;

    /// Grows with each change, from 1.
    quint64 version() const { return m_version; }

    const T &operator*() const { return m_value; }
    const T *operator->() const { return &m_value; }

    /// Returns whether the field changed.
    bool set(T value)
    {
        if (m_value == value)
            return false;
        m_value = std::move(value);
        ++m_version;
        const Batched::Batch batch(*m_owner);
        m_owner->markStale(m_stale);
        (m_owner->*m_notify)();
        return true;
    }
    /// For maps: sets the key's entry to `entry`. Returns whether the field changed.
    template <typename Key, typename Entry>
    bool insert(const Key &key, Entry &&entry)
    {
        T changed = m_value;
        changed.insert(key, std::forward<Entry>(entry));
        return set(std::move(changed));
    }
    /// For maps and sets: removes the key's entry. Returns whether the field changed.
    template <typename Key>
    bool remove(const Key &key)
    {
        T changed = m_value;
        changed.remove(key);
        return set(std::move(changed));
    }

private:
    Owner *m_owner;
    Notify m_notify;
    unsigned m_stale;
    quint64 m_version = 1;
    T m_value;
};
