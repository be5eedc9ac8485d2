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
/// Applies the changes to a list; `rowOf` returns the row of a key, so that a long list is not searched. Returns whether
/// an issue changed. Issues that remain deeply equal remain the same objects.
bool applyChanges(IssueList &issues, const IssueChanges &changes,
                  const std::function<std::optional<int>(const QString &)> &rowOf);
/// The records by issue key with the changes applied; nothing if `changes` has none of them or all remain deeply equal.
std::optional<QHash<QString, SharedIssue>>
changedInDetails(const QHash<QString, SharedIssue> &details, const IssueChanges &changes);
