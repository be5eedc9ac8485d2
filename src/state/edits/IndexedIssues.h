#pragma once

#include "state/edits/IssueCopies.h"

/// A list of issues that finds them by key. The rows of the keys are computed at the first change, so that a list that
/// is replaced before costs nothing, and an edit does not search the lists that are remembered.
class IndexedIssues
{
public:
    IndexedIssues() = default;
    /// The keys are unique.
    explicit IndexedIssues(IssueList issues) : m_issues(std::move(issues)) {}

    const IssueList &list() const { return m_issues; }
    /// The row of an issue; nothing if the list does not have it.
    std::optional<int> rowOf(const QString &key) const;
    /// Whether any of the changes is for an issue of this list.
    bool hasAnyOf(const IssueChanges &changes) const;
    /// Applies the changes. Issues that remain deeply equal remain the same objects.
    void apply(const IssueChanges &changes);

    bool operator==(const IndexedIssues &other) const { return m_issues == other.m_issues; }

private:
    IssueList m_issues;
    /// Empty until a row is first requested.
    mutable QHash<QString, int> m_rows;
};
