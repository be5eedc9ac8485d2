#pragma once

#include "commands/OptionItem.h"
#include "derivation/IssueDerivationSearch.h"

/// The maximum number of issues that the palette shows.
constexpr qsizetype mostPaletteIssues = 12;

/// Issues in memory, with the folded texts of each.
struct SearchableIssues
{
    const IssueList &issues;
    const SearchTexts &texts;
};

/// The issues whose key, summary, labels or assignee contain the query, in the order of the lists, followed by those
/// that the server found, which are not tested again. Each key occurs once, with the first record found; at most
/// `mostPaletteIssues` issues. None for a query without words.
IssueList paletteIssues(const QString &query, const QList<SearchableIssues> &lists,
                        const IssueList &remote);

/// The open issues that contain every one of the words, compared as `paletteIssues` does, in the order of the lists and
/// each once; at most `mostPaletteIssues`. Words that are empty when folded are left out; without words there are no issues.
IssueList openIssuesWith(const QStringList &words, const QList<SearchableIssues> &lists);

/// The issues of a list that are not covered by a search in `searched`: those whose key is not in it, or is in it with
/// different texts. The other issues need not be searched again, nor their texts stored twice.
IssueList notYetSearched(const IssueList &issues, const IssueList &searched);

/// The row that opens an issue.
OptionItem issueItem(const Issue &issue);
/// The key of the issue that a row opens; nothing for other rows.
std::optional<QString> issueKeyOf(const OptionItem &item);
