#pragma once

#include "derivation/IssueDerivationIndex.h"
#include "derivation/IssueDerivationInputs.h"
#include "derivation/IssueDerivationOrder.h"
#include "derivation/IssueSections.h"

/// The data that all steps of the derivation read. `index` is not const because it also assigns numbers to statuses
/// that no issue has.
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

/// The rules by which the list layout divides issues. The context's references must outlive the rules.
SectionRules listRules(const IssueDerivationContext &context);
