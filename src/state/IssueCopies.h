#pragma once

#include "model/Issue.h"
#include "model/IssueScope.h"

#include <QHash>

#include <functional>
#include <optional>

/// A change of an issue in place.
using IssueChange = std::function<void(Issue &)>;

/// One change of one issue in the places where the store keeps copies of it. Each gives the place with the change, or
/// nothing when the issue is not in it or stays deeply equal, so that nobody needs to be told. All other issues stay the
/// same objects.

/// The first entry with the key.
std::optional<IssueList> changedInList(const IssueList &issues, const QString &key,
                                       const IssueChange &change);
/// By key.
std::optional<QHash<QString, SharedIssue>>
changedInDetails(const QHash<QString, SharedIssue> &details, const QString &key,
                 const IssueChange &change);
/// The first entry with the key in the list of every scope.
std::optional<QHash<IssueScope, IssueList>>
changedInScopes(const QHash<IssueScope, IssueList> &lists, const QString &key,
                const IssueChange &change);
