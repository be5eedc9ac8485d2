#include "state/edits/IssueCopies.h"

std::optional<SharedIssue> changed(const SharedIssue &issue, const IssueChange &change)
{
    Issue copy = *issue;
    change(copy);
    if (copy == *issue)
        return std::nullopt;
    return SharedIssue(std::move(copy));
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
