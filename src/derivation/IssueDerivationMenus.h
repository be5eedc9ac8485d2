#pragma once

#include "derivation/IssueDerivationOrder.h"

/// What the filter menus offer: taken from all issues, shown or not, so that a menu keeps its entries while filters are
/// set. Entries that repeat stand once, with the value met first.
struct IssueDerivationMenus
{
    /// One for each group key, in board order.
    QList<IssueStatus> statuses;
    /// By name.
    QList<JiraUser> assignees;
    /// By the alphabet.
    QStringList labels;
    /// One for each name, by name.
    QList<IssueType> types;

    bool operator==(const IssueDerivationMenus &) const = default;
};

IssueDerivationMenus filterMenus(const IssueList &issues, const StatusRanks &ranks,
                                 const NameOrder &names);
