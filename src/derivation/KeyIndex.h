#pragma once

#include <QStringView>

#include <optional>
#include <vector>

/// Finds the position of a key in a list of keys. An open table over the keys' own memory: a tenth of the cost of a hash
/// that copies them, and the views must stay valid for as long as the index is asked.
///
/// It can follow changes of the list: a shift of rows then costs one pass over numbers, without a look at any key. What
/// it cannot follow it says, and is then of no use any more.
class KeyIndex
{
public:
    enum class Outcome { Followed, Lost };

    KeyIndex() = default;
    explicit KeyIndex(std::vector<QStringView> keys);

    /// The first position of the key; nothing if the list does not have it.
    std::optional<int> find(QStringView key) const;

    Outcome insert(int row, QStringView key);
    Outcome remove(int first, int count);
    /// `count` rows from `first` go where the first of them stands at `to` afterwards.
    Outcome move(int first, int count, int to);
    /// The row's key, which stays what it is, lies elsewhere in memory now.
    void relocate(int row, QStringView key);

private:
    std::size_t slotOf(QStringView key) const;
    void number();
    void renumber(int first, int end);

    /// By entry. Entries stay what they are when rows shift; one that is gone has no key.
    std::vector<QStringView> m_keys;
    /// Entries plus one; 0 marks a free slot. A power of two long.
    std::vector<quint32> m_slots;
    /// The row of each entry, and the entry of each row. No entry has a row here as long as both are the same.
    std::vector<int> m_rows;
    std::vector<quint32> m_entries;
    bool m_hasRepeatedKeys = false;
};
