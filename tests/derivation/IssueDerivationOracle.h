#pragma once

#include "derivation/IssueDerivationInputs.h"
#include "derivation/IssueDerivationMenus.h"
#include "derivation/IssueGroup.h"

/// The derivation told step by step, with no thought of cost: what the real one is compared with.
namespace Oracle {

IssueList visibleIssues(const IssueDerivationInputs &inputs);
QList<IssueGroup> groups(const IssueDerivationInputs &inputs);
QList<IssueGroup> boardColumns(const IssueDerivationInputs &inputs);
QStringList flatVisibleKeys(const IssueDerivationInputs &inputs);
IssueDerivationMenus menus(const IssueDerivationInputs &inputs);

} // namespace Oracle
