#pragma once

#include "derivation/IssueDerivationIndex.h"
#include "derivation/IssueDerivationOrder.h"
#include "derivation/IssueGroupStep.h"

#include <functional>

/// Where a section stands among others: smaller is earlier.
using SectionPlace = std::tuple<int, double, int, LocalizedKey, QString>;

/// A section without its issues, and its place.
struct SectionHead
{
    IssueGroup group;
    SectionPlace place;
};

/// How issues are divided into sections.
struct SectionRules
{
    /// A section that stands whether or not it has issues.
    struct Fixed
    {
        quint32 number = 0;
        SectionHead head;
    };

    /// Issues that share this number share a section.
    quint32 IndexedIssue::*number = nullptr;
    /// What the first issue of a section makes of it.
    std::function<SectionHead(const Issue &)> headOf;
    /// With a number each; of those in one place the first stands first, and before all others.
    std::vector<Fixed> fixed;
    /// The issues with these numbers are in no section.
    std::vector<quint32> hidden;
};

/// Issues in sections: those of a list or the columns of a board. Made of a whole list, or brought from one state to the
/// next by single issues; both give the same.
class IssueSections
{
public:
    /// An issue as it is about to stand.
    struct Entry
    {
        quint32 row = 0;
        quint32 number = 0;
        SharedIssue issue;
    };

    IssueSections() = default;
    /// `visible` are rows of the index in the order of their keys.
    IssueSections(const IssueRows &visible, const IssueIndex &index, const SortKeys &keys,
                  const SectionRules &rules);

    const QList<IssueGroup> &groups() const { return m_groups; }
    /// Where the issue with this number and key stands; nothing when it does not.
    std::optional<IssuePlace> find(quint32 number, const SortKey &key, const SortKeys &keys) const;
    /// Takes the issue that stands at `from` to where it belongs now; a missing side means that it comes or goes. `keys`
    /// has its new key. Gives the steps by which the groups have changed.
    IssueGroupSteps replace(const std::optional<IssuePlace> &from, const std::optional<Entry> &to,
                            const SortKeys &keys, const SectionRules &rules);

    /// Who reads sections sees the groups alone.
    friend bool operator==(const IssueSections &a, const IssueSections &b)
    {
        return a.m_groups == b.m_groups;
    }

private:
    struct Section
    {
        quint32 number = 0;
        /// Among the fixed ones; behind them all for others.
        int rank = 0;
        SectionPlace place;
        /// The key of the issue that made it what it is; of no meaning for a fixed one.
        SortKey first;
        IssueRows rows;

        bool isFixed() const;
    };

    static bool isBefore(const Section &a, const Section &b);
    static Section sectionOf(const SectionRules::Fixed &fixed, int rank);
    std::vector<int> knownSections(std::size_t numbers) const;
    int appendSection(quint32 number, const SortKey &first, const Issue &issue,
                      const SectionRules &rules);
    void append(int section, quint32 row, const SharedIssue &issue, qsizetype expected);
    void sortSections();

    int sectionWith(quint32 number) const;
    int placeFor(const Section &section) const;
    void ensureSection(const Entry &entry, const SortKeys &keys, const SectionRules &rules,
                       IssueGroupSteps &steps);
    void takeOut(const IssuePlace &place);
    IssuePlace takeIn(const Entry &entry, const SortKeys &keys);
    void settle(quint32 number, const SortKeys &keys, const SectionRules &rules,
                IssueGroupSteps &steps);
    void take(IssueGroupStep step, IssueGroupSteps &steps);

    std::vector<Section> m_sections;
    /// One for each section.
    QList<IssueGroup> m_groups;
};
