#include "state/edits/IssueCopies.h"

std::optional<SharedIssue> changed(const SharedIssue &issue, const IssueChange &change)
{
    Issue copy = *issue;
    change(copy);
    if (copy == *issue)
        return std::nullopt;
    return SharedIssue(std::move(copy));
}

bool applyChanges(IssueList &issues, const IssueChanges &changes,
                  const std::function<std::optional<int>(const QString &)> &rowOf)
{
    bool isChanged = false;
    for (auto change = changes.cbegin(); change != changes.cend(); ++change) {
        const auto row = rowOf(change.key());
        auto replacement = row ? changed(std::as_const(issues)[*row], *change) : std::nullopt;
        if (!replacement)
            continue;
        issues[*row] = *std::move(replacement);
        isChanged = true;
    }
    return isChanged;
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
