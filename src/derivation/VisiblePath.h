#pragma once

#include "derivation/KeyIndex.h"

#include <QStringList>

#include <optional>

/// The keys of what a layout shows, in reading order: the path of the arrow keys. No key stands on it twice.
class VisiblePath
{
public:
    VisiblePath() = default;
    VisiblePath(QStringList keys) : m_keys(std::move(keys)) {}

    const QStringList &keys() const { return m_keys; }
    qsizetype size() const { return m_keys.size(); }
    bool isEmpty() const { return m_keys.isEmpty(); }
    /// The key at a place, which must be on the path.
    const QString &operator[](qsizetype place) const { return m_keys[place]; }
    const QString &front() const { return m_keys.front(); }
    /// -1 for a key that is not shown. The first question makes an index, each one after it costs a look-up.
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
    /// Points into the keys.
    mutable std::optional<KeyIndex> m_index;
};
