#include "state/edits/IndexedIssues.h"

#include <algorithm>

bool IndexedIssues::hasAnyOf(const IssueChanges &changes) const
{
    const auto keys = changes.keys();
    return std::ranges::any_of(keys, [this](const QString &key) { return rowOf(key).has_value(); });
}

void IndexedIssues::apply(const IssueChanges &changes)
{
    applyChanges(m_issues, changes, [this](const QString &key) { return rowOf(key); });
}

std::optional<int> IndexedIssues::rowOf(const QString &key) const
{
    if (m_rows.isEmpty()) {
        m_rows.reserve(m_issues.size());
        for (int row = 0; row < m_issues.size(); ++row)
            m_rows.insert(m_issues[row]->key, row);
    }
    const auto row = m_rows.constFind(key);
    return row == m_rows.cend() ? std::nullopt : std::optional(*row);
}
