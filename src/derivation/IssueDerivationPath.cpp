// Where keys stand, told without a pass over the issues.

#include "derivation/IssueDerivation.h"
#include "derivation/IssueDerivationBoard.h"

#include <algorithm>

namespace {

/// The place on the path at which each group begins; groups that are not shown take no room.
struct GroupStarts
{
    std::vector<qsizetype> starts;
    qsizetype size = 0;

    void append(qsizetype shown)
    {
        starts.push_back(size);
        size += shown;
    }
    /// The group that has the place.
    qsizetype groupAt(qsizetype place) const
    {
        return std::ranges::upper_bound(starts, place) - starts.begin() - 1;
    }
};

} // namespace

std::optional<int> IssueDerivation::rowOf(QStringView key) const
{
    index();
    return m_index.rowOf(key);
}

VisiblePath IssueDerivation::visiblePath() const
{
    const bool isBoard = m_inputs.layout == LayoutMode::Board;
    const auto &sections = isBoard ? boardMemo().value : listMemo().value;
    const auto number = (isBoard ? boardRules(context()) : listRules(context())).number;
    GroupStarts starts;
    for (const auto &group : sections.groups())
        starts.append(isShown(group) ? group.issues.size() : 0);
    const auto keyAt = [&sections, starts](qsizetype place) {
        const auto group = starts.groupAt(place);
        return sections.groups()[group].issues[place - starts.starts[group]]->key;
    };
    const auto indexOf = [this, &sections, number, starts](const QString &key) -> qsizetype {
        const auto place = placeIn(sections, number, key);
        return place && isShown(sections.groups()[place->group])
                   ? starts.starts[place->group] + place->position
                   : -1;
    };
    return VisiblePath({starts.size, keyAt, indexOf});
}

bool IssueDerivation::isShown(const IssueGroup &group) const
{
    return m_inputs.layout == LayoutMode::Board || !m_inputs.collapsedGroups.contains(group.id);
}

std::optional<IssuePlace> IssueDerivation::placeIn(const IssueSections &sections,
                                                   quint32 IndexedIssue::*number,
                                                   const QString &key) const
{
    const auto row = m_index.rowOf(key);
    if (!row || !passes(quint32(*row)))
        return std::nullopt;
    return sections.find(m_index.rows()[*row].*number, m_order.value.keys[*row],
                         m_order.value.keys);
}
