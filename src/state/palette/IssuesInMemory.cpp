#include "state/palette/IssuesInMemory.h"

QList<SearchableIssues> IssuesInMemory::lists(const SearchableIssues &listed, const IssueList &open)
{
    // Compares identity and not equality, because comparing the contents may take time linear in both.
    if (m_listed.constData() != listed.issues.constData() ||
        m_open.constData() != open.constData()) {
        m_listed = listed.issues;
        m_open = open;
        m_openIssues.update(notYetSearched(m_open, m_listed));
    }
    return {listed, {m_openIssues.issues(), m_openIssues.texts()}};
}
