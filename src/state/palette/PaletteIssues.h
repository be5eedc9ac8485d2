#pragma once

#include "commands/OptionItem.h"
#include "derivation/IssueDerivationSearch.h"

/// The most issues that the palette shows.
constexpr qsizetype mostPaletteIssues = 12;

/// Issues in memory, with the texts of each prepared for searching.
struct SearchableIssues
{
    const IssueList &issues;
    const SearchTexts &texts;
};

/// The issues whose key, summary, labels or assignee contain the query, in the order of the lists, and behind them those
/// that the server found, which are not tested again. Each key once, as first met; the first twelve. None for a query
/// without a word.
IssueList paletteIssues(const QString &query, const QList<SearchableIssues> &lists,
                        const IssueList &remote);

/// The issues of a list that a search of `searched` cannot find for it: those whose key is not there, or with other texts.
/// For the same queries they are found once, and half the texts are kept.
IssueList notYetSearched(const IssueList &issues, const IssueList &searched);

/// The row that opens an issue.
OptionItem issueItem(const Issue &issue);
/// The key of the issue that a row opens; nothing for other rows.
std::optional<QString> issueKeyOf(const OptionItem &item);
