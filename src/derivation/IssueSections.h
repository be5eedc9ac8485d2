#pragma once

#include "derivation/IssueDerivationIndex.h"
#include "derivation/IssueDerivationOrder.h"
#include "derivation/IssueGroup.h"

#include <functional>

/// The sort key of a section: smaller comes first.
using SectionPlace = std::tuple<int, double, int, LocalizedKey, QString>;

/// A section without its issues, and its sort key.
struct SectionHead
{
    IssueGroup group;
    SectionPlace place;
};

/// How issues are divided into sections.
struct SectionRules
{
    /// A section that exists whether or not it has issues.
    struct Fixed
    {
        quint32 number = 0;
        /// Without issues.
        SectionHead head;
    };

    /// The property that determines an issue's section: issues with the same number are in the same section.
    quint32 IndexedIssue::*number = nullptr;
    /// Creates a section from its first issue. The result contains no issues.
    std::function<SectionHead(const Issue &)> headOf;
    /// Each has its own number.
    std::vector<Fixed> fixed;
    /// Issues with these numbers are left out.
    std::vector<quint32> hidden;
};

/// The issues in the rows `visible` of the index, divided into the sections of a list or the columns of a board; within
/// each section, they have the order of `visible`. Among sections with equal sort keys, the fixed ones come first, in
/// their order, then the others in the order of their first issues. A section that has the same records as the section
/// with its id in `earlier` shares the list of that, which costs less than a copy of the references.
QList<IssueGroup> dividedIssues(const IssueRows &visible, const IssueIndex &index,
                                const SectionRules &rules, const QList<IssueGroup> &earlier = {});
