#pragma once

#include "derivation/IssueDerivationIndex.h"
#include "derivation/IssueDerivationInputs.h"
#include "derivation/IssueDerivationOrder.h"
#include "derivation/IssueSections.h"

/// What all steps of the derivation read. The index also gives numbers to statuses that no issue has.
struct IssueDerivationContext
{
    const IssueDerivationInputs &inputs;
    IssueIndex &index;
    const StatusRanks &ranks;
    const NameOrder &names;
};

/// The section of a status, without issues.
IssueGroup statusGroup(const IssueStatus &status);
SectionPlace sectionPlace(const StatusPlace &place);

/// How the list layout divides issues. Lives no longer than what the context names.
SectionRules listRules(const IssueDerivationContext &context);
