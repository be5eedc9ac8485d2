#pragma once

#include "model/Issue.h"

#include <QHash>

#include <functional>
#include <optional>

/// A change of an issue in place.
using IssueChange = std::function<void(Issue &)>;
/// Changes of several issues, by issue key.
using IssueChanges = QHash<QString, IssueChange>;

/// The changed issue; nothing if it is deeply equal to the given one, so that no observer needs to be notified.
std::optional<SharedIssue> changed(const SharedIssue &issue, const IssueChange &change);
/// The list with the changes applied; nothing if `changes` has none of its issues or all remain deeply equal. Unchanged
/// issues remain the same objects.
std::optional<IssueList> changedInList(const IssueList &issues, const IssueChanges &changes);
/// The same for a list without repeated keys whose rows are known: `rowOf` returns the row of a key. A long list is not
/// searched.
std::optional<IssueList>
changedInList(const IssueList &issues, const IssueChanges &changes,
              const std::function<std::optional<int>(const QString &)> &rowOf);
/// The same for records by issue key.
std::optional<QHash<QString, SharedIssue>>
changedInDetails(const QHash<QString, SharedIssue> &details, const IssueChanges &changes);
