#pragma once

#include "state/IssueDerivationIndex.h"
#include "state/IssueDerivationInputs.h"
#include "state/IssueDerivationOrder.h"
#include "state/IssueGroup.h"

/// What all steps of the derivation read.
struct IssueDerivationContext
{
    const IssueDerivationInputs &inputs;
    const IssueIndex &index;
    const StatusRanks &ranks;
    const NameOrder &names;
};

/// The issues that share one number, for each number that occurs, in the order of first occurrence. Never empty lists.
QList<IssueList> issuesBy(quint32 IndexedIssue::*number, const IssueRows &rows,
                          const IssueIndex &index);
QList<IssueList> issuesByStatus(const IssueRows &rows, const IssueIndex &index);

/// A section of the issues with one status; the issues may be none.
IssueGroup statusGroup(const IssueStatus &status, const IssueList &issues);

/// The sections of the list layout for the visible issues; none when nothing is visible.
QList<IssueGroup> listGroups(const IssueRows &visible, const IssueDerivationContext &context);
