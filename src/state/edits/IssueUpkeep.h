#pragma once

#include "model/Issue.h"
#include "model/IssueScope.h"

/// What the store does to issues that it got from several places.

/// The record of an opened issue after a list brought it anew: all of `listed`, but what only a detail fetch knows
/// (description, attachments, `hasDetails`, and sub-tasks where the list has none) from `known`.
Issue mergedIntoDetails(const Issue &listed, const Issue &known);
/// The row of a list after a detail fetch: all of `fetched`, but the history of the row, which recaps count on.
Issue withActivityOf(Issue fetched, const Issue &row);
/// The issues without those whose key came before.
IssueList withoutRepeatedKeys(const IssueList &issues);
/// Whether the list of a scope holds the issue, as far as its record tells; false for lists that depend on more, such as
/// a sprint or a recap. `me` is the user of the session.
bool belongsTo(const Issue &issue, const IssueScope &scope, const std::optional<JiraUser> &me);
/// The open issues, work under way first, then by pressing priority; otherwise in the order given.
IssueList openIssues(const IssueList &issues);
