#pragma once

#include "derivation/IssueDerivationInputs.h"
#include "derivation/IssueDerivationMenus.h"
#include "derivation/IssueGroup.h"

/// A simple reference implementation of the derivation, without optimisations. Tests compare the real one with it.
namespace Oracle {

IssueList visibleIssues(const IssueDerivationInputs &inputs);
QList<IssueGroup> groups(const IssueDerivationInputs &inputs);
QList<IssueGroup> boardColumns(const IssueDerivationInputs &inputs);
QStringList flatVisibleKeys(const IssueDerivationInputs &inputs);
IssueDerivationMenus menus(const IssueDerivationInputs &inputs);

} // namespace Oracle
