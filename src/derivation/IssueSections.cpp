#include "derivation/IssueSections.h"

#include "derivation/IssueDerivationSort.h"

#include <algorithm>

namespace {

constexpr int nowhere = -1;
constexpr int hidden = -2;

/// The number of rows for each section number.
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

/// For each section number below `numbers`: the position of its fixed section, `hidden`, or `nowhere` if it has no
/// section yet.
std::vector<int> knownSections(std::size_t numbers, const SectionRules &rules)
{
    std::vector<int> sections(numbers, nowhere);
    const auto note = [&sections](quint32 number, int section) {
        if (number < sections.size())
            sections[number] = section;
    };
    for (int section = 0; section < std::ssize(rules.fixed); ++section)
        note(rules.fixed[section].number, section);
    for (const auto number : rules.hidden)
        note(number, hidden);
    return sections;
}

/// The list of the section `id`; empty if there is none.
IssueList issuesOf(const QString &id, const QList<IssueGroup> &groups)
{
    const auto found = std::ranges::find(groups, id, &IssueGroup::id);
    return found == groups.end() ? IssueList() : found->issues;
}

/// The records in the rows; `earlier`, if that list has the same ones.
IssueList issuesAt(const IssueRows &rows, const IssueList &issues, const IssueList &earlier)
{
    const auto isSame = [&issues](quint32 row, const SharedIssue &known) {
        return issues[row].isSameObject(known);
    };
    if (std::ranges::equal(rows, earlier, isSame))
        return earlier;
    IssueList found;
    found.reserve(qsizetype(rows.size()));
    for (const auto row : rows)
        found.append(issues[row]);
    return found;
}

QList<IssueGroup> sorted(const QList<SectionHead> &sections)
{
    QList<IssueGroup> groups;
    groups.reserve(sections.size());
    for (const auto &section :
         sortedByKey(sections, [](const SectionHead &head) { return head.place; }))
        groups.append(section.group);
    return groups;
}

} // namespace

QList<IssueGroup> dividedIssues(const IssueRows &visible, const IssueIndex &index,
                                const SectionRules &rules, const QList<IssueGroup> &earlier)
{
    QList<SectionHead> sections;
    for (const auto &fixed : rules.fixed)
        sections.append(fixed.head);
    const auto counts = countsOf(visible, index, rules.number);
    auto known = knownSections(counts.size(), rules);
    std::vector<IssueRows> rowsOf(std::size_t(sections.size()));
    for (const auto row : visible) {
        const auto number = index.rows()[row].*rules.number;
        auto &section = known[number];
        if (section == hidden)
            continue;
        if (section == nowhere) {
            section = int(sections.size());
            sections.append(rules.headOf(*index.issues()[row]));
            rowsOf.emplace_back();
        }
        auto &rows = rowsOf[std::size_t(section)];
        if (rows.empty())
            rows.reserve(std::size_t(counts[number]));
        rows.push_back(row);
    }
    for (std::size_t section = 0; section < rowsOf.size(); ++section) {
        auto &group = sections[qsizetype(section)].group;
        group.issues = issuesAt(rowsOf[section], index.issues(), issuesOf(group.id, earlier));
    }
    return sorted(sections);
}
