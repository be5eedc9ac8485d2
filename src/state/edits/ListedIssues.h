#pragma once

#include "derivation/IssueDerivationIndex.h"
#include "state/edits/IssueCopies.h"

/// A list of issues in which each is found by its key, and changed without a pass over the others.
class ListedIssues
{
public:
    ListedIssues() = default;
    ListedIssues(IssueList issues) : m_issues(std::move(issues)) {}

    const IssueList &issues() const { return m_issues; }
    /// Where the first issue with the key stands. The first question makes an index.
    std::optional<int> rowOf(const QString &key) const;
    /// Changes of each key the first entry; gives whether any issue became another. All others stay the same objects.
    bool change(const IssueChanges &changes);
    /// Another holder of the same list has changed it in these rows.
    void follow(const IssueList &issues, const std::vector<quint32> &rows);
    /// Whether both are one list in memory.
    bool isSharedWith(const IssueList &issues) const
    {
        return m_issues.constData() == issues.constData();
    }
    /// Lets go of the list, so that another holder can change it in place. `follow` must come at once.
    void letGo() { m_issues = {}; }

private:
    IssueList m_issues;
    /// Points into the records.
    mutable std::optional<KeyIndex> m_keys;
};
