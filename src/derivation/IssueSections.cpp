#include "derivation/IssueSections.h"

#include "derivation/IssueDerivationSort.h"

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
                                const SectionRules &rules)
{
    QList<SectionHead> sections;
    for (const auto &fixed : rules.fixed)
        sections.append(fixed.head);
    const auto counts = countsOf(visible, index, rules.number);
    auto known = knownSections(counts.size(), rules);
    for (const auto row : visible) {
        const auto number = index.rows()[row].*rules.number;
        const auto &issue = index.issues()[row];
        auto &section = known[number];
        if (section == hidden)
            continue;
        if (section == nowhere) {
            section = int(sections.size());
            sections.append(rules.headOf(*issue));
        }
        auto &issues = sections[section].group.issues;
        if (issues.isEmpty())
            issues.reserve(counts[number]);
        issues.append(issue);
    }
    return sorted(sections);
}
