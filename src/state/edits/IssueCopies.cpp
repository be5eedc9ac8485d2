#include "state/edits/IssueCopies.h"

std::optional<SharedIssue> changed(const SharedIssue &issue, const IssueChange &change)
{
    Issue copy = *issue;
    change(copy);
    if (copy == *issue)
        return std::nullopt;
    return SharedIssue(std::move(copy));
}

namespace {

/// Comparing with the key of a single change costs less than hashing the key of every issue.
IssueChanges::const_iterator changeOf(const QString &key, const IssueChanges &changes)
{
    if (changes.size() == 1)
        return changes.cbegin().key() == key ? changes.cbegin() : changes.cend();
    return changes.constFind(key);
}

} // namespace

std::optional<IssueList> changedInList(const IssueList &issues, const IssueChanges &changes)
{
    std::optional<IssueList> result;
    for (qsizetype row = 0; row < issues.size(); ++row) {
        const auto change = changeOf(issues[row]->key, changes);
        auto replacement = change == changes.cend() ? std::nullopt : changed(issues[row], *change);
        if (!replacement)
            continue;
        if (!result)
            result = issues;
        (*result)[row] = *std::move(replacement);
    }
    return result;
}

std::optional<IssueList>
changedInList(const IssueList &issues, const IssueChanges &changes,
              const std::function<std::optional<int>(const QString &)> &rowOf)
{
    std::optional<IssueList> result;
    for (auto change = changes.cbegin(); change != changes.cend(); ++change) {
        const auto row = rowOf(change.key());
        auto replacement = row ? changed(issues[*row], *change) : std::nullopt;
        if (!replacement)
            continue;
        if (!result)
            result = issues;
        (*result)[*row] = *std::move(replacement);
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
