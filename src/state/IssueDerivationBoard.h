#pragma once

#include "state/IssueDerivationGroups.h"

/// The statuses from left to right.
QList<IssueStatus> inBoardOrder(const QList<IssueStatus> &statuses, const StatusRanks &ranks,
                                const NameOrder &names);

/// The columns of the board layout for the visible issues. In a project's list every status of its workflow has a column,
/// also without issues; closed columns stand only where closed work is shown.
QList<IssueGroup> boardColumns(const IssueRows &visible, const IssueDerivationContext &context);
