#include "state/edits/IssueCopies.h"

std::optional<SharedIssue> changed(const SharedIssue &issue, const IssueChange &change)
{
    Issue copy = *issue;
    change(copy);
    if (copy == *issue)
        return std::nullopt;
    return SharedIssue(std::move(copy));
}

std::optional<IssueList> changedInList(const IssueList &issues, const IssueChanges &changes)
{
    std::optional<IssueList> result;
    for (qsizetype row = 0; row < issues.size(); ++row) {
        const auto change = changes.constFind(issues[row]->key);
        auto replacement = change == changes.cend() ? std::nullopt : changed(issues[row], *change);
        if (!replacement)
            continue;
        if (!result)
            result = issues;
        (*result)[row] = *std::move(replacement);
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
