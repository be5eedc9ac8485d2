#pragma once

#include "model/Issue.h"
#include "model/IssueScope.h"

/// Functions that combine records of issues from several requests.

/// The record of an opened issue after a list was fetched again. All fields come from `listed`, except those that only
/// a request for details returns: description, attachments, `hasDetails`, and sub-tasks if the list has none. These
/// come from `known`.
Issue mergedIntoDetails(const Issue &listed, const Issue &known);
/// The record in a list after its details were fetched. All fields come from `fetched`, except the history, which comes
/// from `row` because recaps depend on it.
Issue withActivityOf(Issue fetched, const Issue &row);
/// The issues without those whose key occurs earlier in the list.
IssueList withoutRepeatedKeys(const IssueList &issues);
/// Whether the issue belongs to the list of a scope, according to its record. False for lists that depend on other
/// data, such as a sprint or a recap. `me` is the user of the session.
bool belongsTo(const Issue &issue, const IssueScope &scope, const std::optional<JiraUser> &me);
/// The open issues: work in progress first, then by priority, the highest first. The sort is stable.
IssueList openIssues(const IssueList &issues);
