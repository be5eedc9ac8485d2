#pragma once

#include "model/Issue.h"
#include "model/IssueScope.h"

#include <QHash>

#include <functional>
#include <optional>

/// A change of an issue in place.
using IssueChange = std::function<void(Issue &)>;
/// Of several issues, by their keys.
using IssueChanges = QHash<QString, IssueChange>;

/// Changes of issues in the places where the store keeps copies of them, in one pass. Each gives the place with the
/// changes, or nothing when no issue is in it or all stay deeply equal, so that nobody needs to be told. All other issues
/// stay the same objects.

/// Of each key the first entry.
std::optional<IssueList> changedInList(const IssueList &issues, const IssueChanges &changes);
/// By key.
std::optional<QHash<QString, SharedIssue>>
changedInDetails(const QHash<QString, SharedIssue> &details, const IssueChanges &changes);
/// Of each key the first entry in the list of every scope.
std::optional<QHash<IssueScope, IssueList>>
changedInScopes(const QHash<IssueScope, IssueList> &lists, const IssueChanges &changes);

/// The best known records of the keys, in their order and each once: the details, else the first entry in the first list
/// that has one. Keys that are nowhere are left out.
IssueList issuesWithKeys(const QStringList &keys, const QHash<QString, SharedIssue> &details,
                         const QList<IssueList> &lists);
