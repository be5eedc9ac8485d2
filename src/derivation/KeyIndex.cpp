#include "derivation/KeyIndex.h"

#include <QHash>

#include <algorithm>
#include <bit>
#include <numeric>

namespace {

constexpr int gone = -1;

} // namespace

KeyIndex::KeyIndex(std::vector<QStringView> keys)
    : m_keys(std::move(keys)), m_slots(std::bit_ceil(m_keys.size() * 2 + 2), 0)
{
    for (std::size_t entry = 0; entry < m_keys.size(); ++entry) {
        auto &slot = m_slots[slotOf(m_keys[entry])];
        m_hasRepeatedKeys |= slot != 0;
        if (slot == 0)
            slot = quint32(entry + 1);
    }
}

std::optional<int> KeyIndex::find(QStringView key) const
{
    if (m_slots.empty())
        return std::nullopt;
    const auto slot = m_slots[slotOf(key)];
    if (slot == 0)
        return std::nullopt;
    const int row = m_rows.empty() ? int(slot - 1) : m_rows[slot - 1];
    return row == gone ? std::nullopt : std::optional(row);
}

/// The slot that holds the key, or the free one where it would stand.
std::size_t KeyIndex::slotOf(QStringView key) const
{
    const auto mask = m_slots.size() - 1;
    auto slot = qHash(key) & mask;
    while (m_slots[slot] != 0 && m_keys[m_slots[slot] - 1] != key)
        slot = (slot + 1) & mask;
    return slot;
}

KeyIndex::Outcome KeyIndex::insert(int row, QStringView key)
{
    // A fuller table would be slow to search; it is made anew for as many keys as there are now.
    if (m_hasRepeatedKeys || (m_keys.size() + 1) * 4 > m_slots.size() * 3)
        return Outcome::Lost;
    auto &slot = m_slots[slotOf(key)];
    if (slot != 0)
        return Outcome::Lost;
    number();
    slot = quint32(m_keys.size() + 1);
    m_entries.insert(m_entries.begin() + row, quint32(m_keys.size()));
    m_keys.push_back(key);
    m_rows.push_back(row);
    renumber(row, int(m_entries.size()));
    return Outcome::Followed;
}

KeyIndex::Outcome KeyIndex::remove(int first, int count)
{
    if (m_hasRepeatedKeys)
        return Outcome::Lost;
    number();
    const auto begin = m_entries.begin() + first;
    for (const auto entry : std::vector<quint32>(begin, begin + count)) {
        m_keys[entry] = {};
        m_rows[entry] = gone;
    }
    m_entries.erase(begin, begin + count);
    renumber(first, int(m_entries.size()));
    return Outcome::Followed;
}

KeyIndex::Outcome KeyIndex::move(int first, int count, int to)
{
    if (m_hasRepeatedKeys)
        return Outcome::Lost;
    number();
    const auto begin = m_entries.begin();
    if (to < first)
        std::rotate(begin + to, begin + first, begin + first + count);
    else
        std::rotate(begin + first, begin + first + count, begin + to + count);
    renumber(std::min(first, to), std::max(first, to) + count);
    return Outcome::Followed;
}

void KeyIndex::relocate(int row, QStringView key)
{
    const auto entry = m_rows.empty() ? quint32(row) : m_entries[row];
    // Of a repeated key the row may be one that is never found; then nothing looks at its memory but this.
    m_keys[entry] = key;
}

void KeyIndex::number()
{
    if (!m_rows.empty() || m_keys.empty())
        return;
    m_rows.resize(m_keys.size());
    std::iota(m_rows.begin(), m_rows.end(), 0);
    m_entries.resize(m_keys.size());
    std::iota(m_entries.begin(), m_entries.end(), 0U);
}

void KeyIndex::renumber(int first, int end)
{
    for (int row = first; row < end; ++row)
        m_rows[m_entries[row]] = row;
}
