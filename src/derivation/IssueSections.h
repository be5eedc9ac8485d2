#pragma once

#include "derivation/IssueDerivationIndex.h"
#include "derivation/IssueDerivationOrder.h"
#include "derivation/IssueGroup.h"

#include <functional>

/// Where a section stands among others: smaller is earlier.
using SectionPlace = std::tuple<int, double, int, LocalizedKey, QString>;

/// A section and its place.
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
        /// Without issues.
        SectionHead head;
    };

    /// Issues that share this number share a section.
    quint32 IndexedIssue::*number = nullptr;
    /// What the first issue of a section makes of it, without any issues.
    std::function<SectionHead(const Issue &)> headOf;
    /// With a number each.
    std::vector<Fixed> fixed;
    /// The issues with these numbers are in no section.
    std::vector<quint32> hidden;
};

/// The issues in the rows `visible` of the index, divided into the sections of a list or the columns of a board; within
/// each in the order of `visible`. Of sections in one place the fixed ones stand first, in their order, then the others
/// in the order of their first issues.
QList<IssueGroup> dividedIssues(const IssueRows &visible, const IssueIndex &index,
                                const SectionRules &rules);
