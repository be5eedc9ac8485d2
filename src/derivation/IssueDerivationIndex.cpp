#include "derivation/IssueDerivationIndex.h"

#include "derivation/Memo.h"

#include <algorithm>
#include <ranges>

namespace {

constexpr qsizetype nowhere = -1;

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
    TextRows textRows;
    textRows.reserve(issues.size());
    std::vector<IndexedIssue> rows;
    rows.reserve(issues.size());
    for (const auto &issue : issues) {
        const auto old = earlier.rowOf(issue, qsizetype(rows.size()));
        const bool isKnown = old && m_issues.at(*old).isSameObject(issue);
        const bool hasTexts =
            isKnown || (old && SearchTexts::sameTexts(*m_issues.at(*old), *issue));
        textRows.push_back(hasTexts ? *old : nowhere);
        rows.push_back(isKnown ? m_rows[*old] : indexed(*issue));
    }
    if (keepsTexts(textRows))
        referToKeysOf(issues);
    else
        updateTexts(issues, textRows);
    m_issues = issues;
    m_rows = std::move(rows);
}

/// Whether each issue has the texts, and thus the key, that its row has already.
bool IssueIndex::keepsTexts(const TextRows &rows) const
{
    const auto same = std::views::iota(qsizetype(0), m_issues.size());
    return std::ranges::equal(rows, same);
}

/// The records that are replaced soon take the memory of their keys with them.
void IssueIndex::referToKeysOf(const IssueList &issues)
{
    for (qsizetype row = 0; row < issues.size(); ++row) {
        if (!issues[row].isSameObject(m_issues.at(row)))
            m_keys.setMemory(int(row), issues[row]->key);
    }
}

void IssueIndex::updateTexts(const IssueList &issues, const TextRows &rows)
{
    SearchTexts texts;
    texts.reserve(issues.size(), m_texts.bytes());
    for (qsizetype row = 0; row < issues.size(); ++row) {
        if (const auto old = rows[std::size_t(row)]; old != nowhere) {
            texts.append(m_texts, old);
        } else {
            qCDebug(computationLog, "texts");
            texts.append(*issues[row]);
        }
    }
    m_texts = std::move(texts);
    m_keys = keyIndexOf(issues);
}

IndexedIssue IssueIndex::indexed(const Issue &issue)
{
    return {m_statuses.of(issue.status.groupKey()),
            m_assignees.of(issue.assignee ? issue.assignee->id : QString()),
            m_projects.of(issue.projectKey),
            quint32(issue.priorityLevel()),
            0,
            quint32(issue.key.size()),
            ::isClosed(issue.status.category()),
            issue.updated.toMSecsSinceEpoch(),
            issue.created.toMSecsSinceEpoch()};
}

/// Called for an empty list, which occurs between two sessions and between most scopes, so that old names do not
/// accumulate.
void IssueIndex::forgetNames()
{
    m_statuses = {};
    m_assignees = {};
    m_projects = {};
}
