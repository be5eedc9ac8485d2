#pragma once

#include "derivation/IssueDerivationGroups.h"

/// The statuses in the order of the board's columns, from left to right.
QList<IssueStatus> inBoardOrder(const QList<IssueStatus> &statuses, const StatusRanks &ranks,
                                const NameOrder &names);

/// The rules by which the board divides issues. In a project's list, every status of its workflow has a column, even
/// without issues. Columns of closed statuses exist only if closed work is shown. The context's references must outlive
/// the rules.
SectionRules boardRules(const IssueDerivationContext &context);
