#include "derivation/IssueSections.h"

#include <algorithm>
#include <limits>
#include <numeric>

using namespace GroupStep;

namespace {

constexpr int behindTheFixed = std::numeric_limits<int>::max();
constexpr int nowhere = -1;
constexpr int hidden = -2;

bool isHidden(quint32 number, const SectionRules &rules)
{
    return std::ranges::find(rules.hidden, number) != rules.hidden.end();
}

bool haveSameHeader(const IssueGroup &a, const IssueGroup &b)
{
    return a.id == b.id && a.title == b.title && a.kind == b.kind;
}

/// How many rows have each number.
std::vector<qsizetype> countsOf(const IssueRows &rows, const IssueIndex &index,
                                quint32 IndexedIssue::*number)
{
    std::vector<qsizetype> counts;
    for (const auto row : rows) {
        const auto which = index.rows()[row].*number;
        if (which >= counts.size())
            counts.resize(which + 1, 0);
        ++counts[which];
    }
    return counts;
}

std::optional<IssueGroupStep> stepBetween(const std::optional<IssuePlace> &from,
                                          const std::optional<IssuePlace> &to,
                                          const std::optional<IssueSections::Entry> &entry)
{
    if (!from && !to)
        return std::nullopt;
    if (!to)
        return IssueRemoved{*from};
    if (!from)
        return IssueInserted{*to, entry->issue};
    if (from == to)
        return IssueChanged{*to, entry->issue};
    return IssueMoved{*from, *to, entry->issue};
}

} // namespace

bool IssueSections::Section::isFixed() const
{
    return rank != behindTheFixed;
}

IssueSections::Section IssueSections::sectionOf(const SectionRules::Fixed &fixed, int rank)
{
    return {fixed.number, rank, fixed.head.place, {}, {}};
}

IssueSections::IssueSections(const IssueRows &visible, const IssueIndex &index,
                             const SortKeys &keys, const SectionRules &rules)
{
    for (const auto &fixed : rules.fixed) {
        m_sections.push_back(sectionOf(fixed, int(m_sections.size())));
        m_groups.append(fixed.head.group);
    }
    const auto counts = countsOf(visible, index, rules.number);
    auto sections = knownSections(counts.size());
    for (const auto row : visible) {
        const auto number = index.rows()[row].*rules.number;
        auto &section = sections[number];
        if (section == nowhere)
            section = appendSection(number, keys[row], *index.issues()[row], rules);
        if (section == hidden)
            continue;
        append(section, row, index.issues()[row], counts[number]);
    }
    sortSections();
}

/// By number: the section, as far as there is one.
std::vector<int> IssueSections::knownSections(std::size_t numbers) const
{
    std::vector<int> sections(numbers, nowhere);
    for (int section = 0; section < std::ssize(m_sections); ++section) {
        if (m_sections[section].number < numbers)
            sections[m_sections[section].number] = section;
    }
    return sections;
}

int IssueSections::appendSection(quint32 number, const SortKey &first, const Issue &issue,
                                 const SectionRules &rules)
{
    if (isHidden(number, rules))
        return hidden;
    auto head = rules.headOf(issue);
    m_sections.push_back({number, behindTheFixed, std::move(head.place), first, {}});
    m_groups.append(std::move(head.group));
    return int(m_sections.size()) - 1;
}

void IssueSections::append(int section, quint32 row, const SharedIssue &issue, qsizetype expected)
{
    auto &rows = m_sections[section].rows;
    auto &issues = m_groups[section].issues;
    if (rows.empty()) {
        rows.reserve(expected);
        issues.reserve(expected);
    }
    rows.push_back(row);
    issues.append(issue);
}

void IssueSections::sortSections()
{
    std::vector<qsizetype> order(m_sections.size());
    std::iota(order.begin(), order.end(), 0);
    std::ranges::sort(
        order, [&](qsizetype a, qsizetype b) { return isBefore(m_sections[a], m_sections[b]); });
    std::vector<Section> sections;
    QList<IssueGroup> groups;
    for (const auto from : order) {
        sections.push_back(std::move(m_sections[from]));
        groups.append(std::move(m_groups[from]));
    }
    m_sections = std::move(sections);
    m_groups = std::move(groups);
}

/// Of sections in one place the fixed ones stand first, in their order, then the others in the order of their issues.
bool IssueSections::isBefore(const Section &a, const Section &b)
{
    if (a.place < b.place || b.place < a.place)
        return a.place < b.place;
    return a.rank != b.rank ? a.rank < b.rank : a.first < b.first;
}

int IssueSections::sectionWith(quint32 number) const
{
    const auto found = std::ranges::find(m_sections, number, &Section::number);
    return found == m_sections.end() ? nowhere : int(found - m_sections.begin());
}

std::optional<IssuePlace> IssueSections::find(quint32 number, const SortKey &key,
                                              const SortKeys &keys) const
{
    const int section = sectionWith(number);
    if (section == nowhere)
        return std::nullopt;
    const auto &rows = m_sections[section].rows;
    const auto position = placeOf(key, rows, keys);
    if (position == std::ssize(rows) || rows[position] != key.row)
        return std::nullopt;
    return IssuePlace{section, int(position)};
}

IssueGroupSteps IssueSections::replace(const std::optional<IssuePlace> &from,
                                       const std::optional<Entry> &to, const SortKeys &keys,
                                       const SectionRules &rules)
{
    IssueGroupSteps steps;
    const auto numberBefore = from ? std::optional(m_sections[from->group].number) : std::nullopt;
    const bool stands = to && !isHidden(to->number, rules);
    if (stands)
        ensureSection(*to, keys, rules, steps);
    if (numberBefore)
        takeOut({sectionWith(*numberBefore), from->position});
    const auto place = stands ? std::optional(takeIn(*to, keys)) : std::nullopt;
    const auto source = numberBefore
                            ? std::optional(IssuePlace{sectionWith(*numberBefore), from->position})
                            : std::nullopt;
    if (const auto step = stepBetween(source, place, to))
        take(*step, steps);
    if (numberBefore)
        settle(*numberBefore, keys, rules, steps);
    if (stands && to->number != numberBefore)
        settle(to->number, keys, rules, steps);
    return steps;
}

void IssueSections::ensureSection(const Entry &entry, const SortKeys &keys,
                                  const SectionRules &rules, IssueGroupSteps &steps)
{
    if (sectionWith(entry.number) != nowhere)
        return;
    auto head = rules.headOf(*entry.issue);
    Section section{entry.number, behindTheFixed, std::move(head.place), keys[entry.row], {}};
    const int at = placeFor(section);
    m_sections.insert(m_sections.begin() + at, std::move(section));
    take(GroupInserted{at, std::move(head.group)}, steps);
}

void IssueSections::takeOut(const IssuePlace &place)
{
    auto &rows = m_sections[place.group].rows;
    rows.erase(rows.begin() + place.position);
}

IssuePlace IssueSections::takeIn(const Entry &entry, const SortKeys &keys)
{
    const int section = sectionWith(entry.number);
    auto &rows = m_sections[section].rows;
    const auto position = placeOf(keys[entry.row], rows, keys);
    rows.insert(rows.begin() + position, entry.row);
    return {section, int(position)};
}

/// Brings a section, whose first issue may be another, to the head and the place that it has now.
void IssueSections::settle(quint32 number, const SortKeys &keys, const SectionRules &rules,
                           IssueGroupSteps &steps)
{
    const int from = sectionWith(number);
    if (m_sections[from].isFixed())
        return;
    Section section = std::move(m_sections[from]);
    m_sections.erase(m_sections.begin() + from);
    if (section.rows.empty())
        return take(GroupRemoved{from}, steps);
    auto head = rules.headOf(*m_groups[from].issues.constFirst());
    section.place = std::move(head.place);
    section.first = keys[section.rows.front()];
    const int to = placeFor(section);
    m_sections.insert(m_sections.begin() + to, std::move(section));
    if (!haveSameHeader(head.group, m_groups[from]))
        take(GroupChanged{from, std::move(head.group)}, steps);
    if (to != from)
        take(GroupMoved{from, to}, steps);
}

int IssueSections::placeFor(const Section &section) const
{
    return int(std::ranges::lower_bound(m_sections, section, &IssueSections::isBefore) -
               m_sections.begin());
}

void IssueSections::take(IssueGroupStep step, IssueGroupSteps &steps)
{
    applyStep(step, m_groups);
    steps.push_back(std::move(step));
}
