#pragma once

#include "derivation/IssueDerivationOrder.h"

/// The entries of the filter menus. They are taken from all issues, shown or not, so that a menu keeps its entries
/// while filters are set. Each entry occurs once; of repeated entries, the first is kept.
struct IssueDerivationMenus
{
    /// One for each group key, in board order.
    QList<IssueStatus> statuses;
    /// Sorted by name.
    QList<JiraUser> assignees;
    /// Sorted alphabetically.
    QStringList labels;
    /// One for each name, sorted by name.
    QList<IssueType> types;

    bool operator==(const IssueDerivationMenus &) const = default;
};

IssueDerivationMenus filterMenus(const IssueList &issues, const StatusRanks &ranks,
                                 const NameOrder &names);
