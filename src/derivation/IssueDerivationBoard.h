#pragma once

#include "derivation/IssueDerivationGroups.h"

/// The statuses from left to right.
QList<IssueStatus> inBoardOrder(const QList<IssueStatus> &statuses, const StatusRanks &ranks,
                                const NameOrder &names);

/// How the board divides issues. In a project's list every status of its workflow has a column, also without issues;
/// closed columns stand only where closed work is shown. Lives no longer than what the context names.
SectionRules boardRules(const IssueDerivationContext &context);
