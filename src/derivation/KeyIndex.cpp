#include "derivation/KeyIndex.h"

#include <QHash>

#include <bit>

namespace {

/// How many keys in advance the characters of a key are loaded into the cache. The keys of a long list are scattered in
/// memory, and without this, waiting for them takes most of the time.
constexpr std::size_t prefetchDistance = 16;

} // namespace

KeyIndex::KeyIndex(std::vector<QStringView> keys)
    : m_keys(std::move(keys)), m_slots(std::bit_ceil(m_keys.size() * 2 + 2), 0)
{
    for (std::size_t row = 0; row < m_keys.size(); ++row) {
        if (row + prefetchDistance < m_keys.size())
            __builtin_prefetch(m_keys[row + prefetchDistance].data());
        auto &slot = m_slots[slotOf(m_keys[row])];
        if (slot == 0)
            slot = quint32(row + 1);
        else
            m_repeats.push_back(int(row));
    }
}

std::optional<int> KeyIndex::find(QStringView key) const
{
    if (m_slots.empty())
        return std::nullopt;
    const auto slot = m_slots[slotOf(key)];
    return slot == 0 ? std::nullopt : std::optional(int(slot - 1));
}

/// The slot that contains the key, or the free slot where it would be inserted.
std::size_t KeyIndex::slotOf(QStringView key) const
{
    const auto mask = m_slots.size() - 1;
    auto slot = qHash(key) & mask;
    while (m_slots[slot] != 0 && m_keys[m_slots[slot] - 1] != key)
        slot = (slot + 1) & mask;
    return slot;
}
