#pragma once

#include "model/Issue.h"

#include <QHash>

#include <functional>
#include <optional>

/// A change of an issue in place.
using IssueChange = std::function<void(Issue &)>;
/// Of several issues, by their keys.
using IssueChanges = QHash<QString, IssueChange>;

/// The issue with the change; nothing when it stays deeply equal, so that nobody needs to be told.
std::optional<SharedIssue> changed(const SharedIssue &issue, const IssueChange &change);
/// The list with the changes; nothing when none of its issues is among them or all stay deeply equal. All others stay the
/// same objects.
std::optional<IssueList> changedInList(const IssueList &issues, const IssueChanges &changes);
/// Issues by their keys with the changes; nothing when none of them is there or all stay deeply equal. All others stay
/// the same objects.
std::optional<QHash<QString, SharedIssue>>
changedInDetails(const QHash<QString, SharedIssue> &details, const IssueChanges &changes);
