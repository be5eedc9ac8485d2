#pragma once

#include <QStringView>

#include <optional>
#include <vector>

/// Finds the position of a key in a list of keys. It is a hash table with open addressing that refers to the memory of
/// the keys, so the views must stay valid for as long as the index is used. This has a tenth of the cost of a hash
/// table that copies the keys.
class KeyIndex
{
public:
    KeyIndex() = default;
    explicit KeyIndex(std::vector<QStringView> keys);

    /// The first position of the key; nothing if the list does not have it.
    std::optional<int> find(QStringView key) const;
    /// Refers to other memory for the key at a position; the key itself must be the same.
    void setMemory(int position, QStringView sameKey) { m_keys[std::size_t(position)] = sameKey; }
    /// The positions whose key also occurs at an earlier position; ascending.
    const std::vector<int> &repeats() const { return m_repeats; }

private:
    std::size_t slotOf(QStringView key) const;

    std::vector<QStringView> m_keys;
    /// Positions plus one; 0 marks a free slot. The size is a power of two.
    std::vector<quint32> m_slots;
    std::vector<int> m_repeats;
};
