#include "state/IssueCopies.h"

#include <QSet>

namespace {

std::optional<SharedIssue> changed(const SharedIssue &issue, const IssueChange &change)
{
    Issue copy = *issue;
    change(copy);
    if (copy == *issue)
        return std::nullopt;
    return SharedIssue(std::move(copy));
}

/// Adds the first entry of each wanted key that is not found yet.
void addFound(QHash<QString, SharedIssue> &found, const QSet<QString> &wanted,
              const IssueList &issues)
{
    for (const SharedIssue &issue : issues) {
        if (found.size() == wanted.size())
            return;
        if (wanted.contains(issue->key) && !found.contains(issue->key))
            found.insert(issue->key, issue);
    }
}

} // namespace

std::optional<IssueList> changedInList(const IssueList &issues, const IssueChanges &changes)
{
    std::optional<IssueList> result;
    QSet<QString> met;
    for (qsizetype row = 0; row < issues.size() && met.size() < changes.size(); ++row) {
        const auto change = changes.constFind(issues[row]->key);
        if (change == changes.cend() || met.contains(change.key()))
            continue;
        met.insert(change.key());
        auto replacement = changed(issues[row], *change);
        if (!replacement)
            continue;
        if (!result)
            result = issues;
        result->replace(row, *std::move(replacement));
    }
    return result;
}

std::optional<QHash<QString, SharedIssue>>
changedInDetails(const QHash<QString, SharedIssue> &details, const IssueChanges &changes)
{
    std::optional<QHash<QString, SharedIssue>> result;
    for (auto change = changes.cbegin(); change != changes.cend(); ++change) {
        const auto found = details.constFind(change.key());
        auto replacement = found == details.cend() ? std::nullopt : changed(*found, *change);
        if (!replacement)
            continue;
        if (!result)
            result = details;
        result->insert(change.key(), *std::move(replacement));
    }
    return result;
}

std::optional<QHash<IssueScope, IssueList>>
changedInScopes(const QHash<IssueScope, IssueList> &lists, const IssueChanges &changes)
{
    std::optional<QHash<IssueScope, IssueList>> result;
    for (auto list = lists.cbegin(); list != lists.cend(); ++list) {
        auto replacement = changedInList(list.value(), changes);
        if (!replacement)
            continue;
        if (!result)
            result = lists;
        result->insert(list.key(), *std::move(replacement));
    }
    return result;
}

IssueList issuesWithKeys(const QStringList &keys, const QHash<QString, SharedIssue> &details,
                         const QList<IssueList> &lists)
{
    const QSet<QString> wanted(keys.cbegin(), keys.cend());
    QHash<QString, SharedIssue> found;
    for (const QString &key : wanted) {
        const auto opened = details.constFind(key);
        if (opened != details.cend())
            found.insert(key, *opened);
    }
    for (const IssueList &issues : lists)
        addFound(found, wanted, issues);
    IssueList result;
    for (const QString &key : keys) {
        const auto issue = found.constFind(key);
        if (issue == found.cend())
            continue;
        result.append(*issue);
        found.erase(issue);
    }
    return result;
}
