#pragma once

#include "derivation/KeyIndex.h"

#include <QStringList>

#include <optional>

/// The keys of the issues that a layout shows, in reading order. The arrow keys move the focus in this order. Each key
/// occurs once.
class VisiblePath
{
public:
    VisiblePath() = default;
    VisiblePath(QStringList keys) : m_keys(std::move(keys)) {}

    const QStringList &keys() const { return m_keys; }
    qsizetype size() const { return m_keys.size(); }
    bool isEmpty() const { return m_keys.isEmpty(); }
    /// The key at a position, which must be in range.
    const QString &operator[](qsizetype place) const { return m_keys[place]; }
    const QString &front() const { return m_keys.front(); }
    /// The position of the key; -1 if it is not shown. The first call builds an index, each later call is a look-up in
    /// it.
    qsizetype indexOf(const QString &key) const
    {
        if (!m_index)
            m_index = KeyIndex(std::vector<QStringView>(m_keys.begin(), m_keys.end()));
        return m_index->find(key).value_or(-1);
    }

    friend bool operator==(const VisiblePath &a, const VisiblePath &b)
    {
        return a.m_keys == b.m_keys;
    }

private:
    QStringList m_keys;
    /// Refers to the memory of the strings in `m_keys`.
    mutable std::optional<KeyIndex> m_index;
};
