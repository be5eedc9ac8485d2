#pragma once

#include "derivation/IssueDerivationIndex.h"
#include "state/palette/PaletteIssues.h"

/// The issues in memory, prepared for searches: those of the current list, whose texts are folded already, and the user's
/// open issues that are not in it.
class IssuesInMemory
{
public:
    /// Folds only what has changed since the last call. The result refers to `listed` and to this object, until the next
    /// call.
    QList<SearchableIssues> lists(const SearchableIssues &listed, const IssueList &open);

private:
    /// The inputs from which `m_openIssues` was computed.
    IssueList m_listed;
    IssueList m_open;
    /// The open issues that are not among the listed ones.
    IssueIndex m_openIssues;
};
