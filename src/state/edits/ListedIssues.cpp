#include "state/edits/ListedIssues.h"

std::optional<int> ListedIssues::rowOf(const QString &key) const
{
    if (!m_keys)
        m_keys = keyIndexOf(m_issues);
    return m_keys->find(key);
}

bool ListedIssues::change(const IssueChanges &changes)
{
    bool hasChanged = false;
    for (auto change = changes.cbegin(); change != changes.cend(); ++change) {
        const auto row = rowOf(change.key());
        auto record = row ? changed(m_issues.at(*row), *change) : std::nullopt;
        if (!record)
            continue;
        hasChanged = true;
        m_issues[*row] = *std::move(record);
        m_keys->relocate(*row, m_issues.at(*row)->key);
    }
    return hasChanged;
}

void ListedIssues::follow(const IssueList &issues, const std::vector<quint32> &rows)
{
    m_issues = issues;
    if (!m_keys)
        return;
    for (const auto row : rows)
        m_keys->relocate(int(row), m_issues.at(row)->key);
}
