#include "derivation/IssueDerivationIndex.h"

namespace {

/// Finds the previous record of an issue: first at the same row, which is the usual case, else by its key.
class EarlierRecords
{
public:
    explicit EarlierRecords(const IssueList &issues) : m_issues(issues) {}

    std::optional<qsizetype> rowOf(const SharedIssue &issue, qsizetype likelyRow)
    {
        if (likelyRow < m_issues.size() &&
            (m_issues[likelyRow].isSameObject(issue) || m_issues[likelyRow]->key == issue->key))
            return likelyRow;
        const auto &rows = rowsByKey();
        const auto found = rows.find(issue->key);
        return found == rows.end() ? std::nullopt : std::optional(*found);
    }

private:
    const QHash<QString, qsizetype> &rowsByKey()
    {
        if (!m_rows.isEmpty())
            return m_rows;
        m_rows.reserve(m_issues.size());
        for (qsizetype row = 0; row < m_issues.size(); ++row)
            m_rows.insert(m_issues[row]->key, row);
        return m_rows;
    }

    const IssueList &m_issues;
    QHash<QString, qsizetype> m_rows;
};

/// The index refers to the memory of the records.
KeyIndex keyIndexOf(const IssueList &issues)
{
    std::vector<QStringView> keys;
    keys.reserve(issues.size());
    for (const auto &issue : issues)
        keys.emplace_back(issue->key);
    return KeyIndex(std::move(keys));
}

} // namespace

quint32 Ordinals::of(const QString &text)
{
    const auto known = m_numbers.constFind(text);
    return known != m_numbers.constEnd() ? *known : *m_numbers.insert(text, count());
}

IssueList reusingRecords(IssueList fresh, const IssueList &known)
{
    EarlierRecords earlier(known);
    qsizetype at = 0;
    for (auto &issue : fresh) {
        const auto row = earlier.rowOf(issue, at++);
        if (row && known[*row] == issue)
            issue = known[*row];
    }
    return fresh;
}

void IssueIndex::update(const IssueList &issues)
{
    if (issues.isEmpty())
        forgetNames();
    EarlierRecords earlier(m_issues);
    SearchTexts texts;
    texts.reserve(issues.size(), m_texts.bytes());
    std::vector<IndexedIssue> rows;
    rows.reserve(issues.size());
    for (const auto &issue : issues) {
        const auto old = earlier.rowOf(issue, qsizetype(rows.size()));
        const bool isKnown = old && m_issues.at(*old).isSameObject(issue);
        if (isKnown || (old && SearchTexts::sameTexts(*m_issues.at(*old), *issue)))
            texts.append(m_texts, *old);
        else
            texts.append(*issue), ++m_foldedIssues;
        rows.push_back(isKnown ? m_rows[*old] : indexed(*issue));
    }
    m_issues = issues;
    m_rows = std::move(rows);
    m_texts = std::move(texts);
    m_keys = keyIndexOf(m_issues);
}

IndexedIssue IssueIndex::indexed(const Issue &issue)
{
    return {m_statuses.of(issue.status.groupKey()),
            m_assignees.of(issue.assignee ? issue.assignee->id : QString()),
            m_projects.of(issue.projectKey),
            quint32(issue.priorityLevel()),
            0,
            ::isClosed(issue.status.category())};
}

/// Called for an empty list, which occurs between two sessions and between most scopes, so that old names do not
/// accumulate.
void IssueIndex::forgetNames()
{
    m_statuses = {};
    m_assignees = {};
    m_projects = {};
}
