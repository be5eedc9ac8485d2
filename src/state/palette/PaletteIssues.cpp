#include "state/palette/PaletteIssues.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

/// Collects the first issues, each key once.
class FirstIssues
{
public:
    bool isFull() const { return m_issues.size() >= mostPaletteIssues; }
    void add(const SharedIssue &issue)
    {
        if (isFull() || m_keys.contains(issue->key))
            return;
        m_keys.insert(issue->key);
        m_issues.append(issue);
    }
    IssueList issues() const { return m_issues; }

private:
    QSet<QString> m_keys;
    IssueList m_issues;
};

void addMatching(FirstIssues &found, const SearchableIssues &list, const QByteArray &needle)
{
    const auto hits = list.texts.containing(needle);
    for (qsizetype i = 0; i < list.issues.size() && !found.isFull(); ++i) {
        if (hits[i])
            found.add(list.issues[i]);
    }
}

/// The needles of the words, without those that are empty when folded.
QByteArrayList needles(const QStringList &words)
{
    QByteArrayList all;
    for (const QString &word : words)
        all += SearchTexts::needle(word);
    all.removeAll(QByteArray());
    return all;
}

void addOpenWithAll(FirstIssues &found, const SearchableIssues &list, const QByteArrayList &needles)
{
    std::vector<quint8> hits(list.issues.size(), 1);
    for (const auto &needle : needles)
        std::ranges::transform(hits, list.texts.containing(needle), hits.begin(), std::bit_and<>());
    for (qsizetype i = 0; i < list.issues.size() && !found.isFull(); ++i) {
        if (hits[i] && !isClosed(list.issues[i]->status.category()))
            found.add(list.issues[i]);
    }
}

} // namespace

IssueList paletteIssues(const QString &query, const QList<SearchableIssues> &lists,
                        const IssueList &remote)
{
    FirstIssues found;
    if (query.trimmed().isEmpty())
        return {};
    // A query that consists only of diacritics is empty when folded. It matches nothing.
    const QByteArray needle = SearchTexts::needle(query);
    for (const auto &list : lists) {
        if (!needle.isEmpty())
            addMatching(found, list, needle);
    }
    for (const auto &issue : remote)
        found.add(issue);
    return found.issues();
}

IssueList openIssuesWith(const QStringList &words, const QList<SearchableIssues> &lists)
{
    FirstIssues found;
    const QByteArrayList all = needles(words);
    for (const auto &list : lists) {
        if (!all.isEmpty())
            addOpenWithAll(found, list, all);
    }
    return found.issues();
}

IssueList notYetSearched(const IssueList &issues, const IssueList &searched)
{
    if (issues.isEmpty())
        return {};
    QHash<QStringView, const Issue *> byKey;
    byKey.reserve(searched.size());
    for (const auto &issue : searched)
        byKey.insert(issue->key, &*issue);
    IssueList left = issues;
    left.removeIf([&](const SharedIssue &issue) {
        const auto *same = byKey.value(issue->key);
        return same && (same == &*issue || SearchTexts::sameTexts(*same, *issue));
    });
    return left;
}

OptionItem issueItem(const Issue &issue)
{
    return {.id = u"issue:"_s + issue.key,
            .title = issue.summary,
            .subtitle = issue.key,
            .icon = {issue.status},
            .run = {OptionAction::RunCommand{Command::OpenIssue, QStringList(issue.key)}}};
}

std::optional<QString> issueKeyOf(const OptionItem &item)
{
    const auto *run = std::get_if<OptionAction::RunCommand>(&item.run.value);
    const bool opensIssue = run && run->command == Command::OpenIssue && run->keys;
    return opensIssue ? std::optional(run->keys->first()) : std::nullopt;
}
