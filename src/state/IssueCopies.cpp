#include "state/IssueCopies.h"

#include <algorithm>

namespace {

std::optional<SharedIssue> changed(const SharedIssue &issue, const IssueChange &change)
{
    Issue copy = *issue;
    change(copy);
    if (copy == *issue)
        return std::nullopt;
    return SharedIssue(std::move(copy));
}

} // namespace

std::optional<IssueList> changedInList(const IssueList &issues, const QString &key,
                                       const IssueChange &change)
{
    const auto found =
        std::ranges::find_if(issues, [&](const SharedIssue &issue) { return issue->key == key; });
    if (found == issues.end())
        return std::nullopt;
    auto replacement = changed(*found, change);
    if (!replacement)
        return std::nullopt;
    IssueList result = issues;
    result.replace(found - issues.begin(), *std::move(replacement));
    return result;
}

std::optional<QHash<QString, SharedIssue>>
changedInDetails(const QHash<QString, SharedIssue> &details, const QString &key,
                 const IssueChange &change)
{
    const auto found = details.constFind(key);
    if (found == details.cend())
        return std::nullopt;
    auto replacement = changed(*found, change);
    if (!replacement)
        return std::nullopt;
    QHash<QString, SharedIssue> result = details;
    result.insert(key, *std::move(replacement));
    return result;
}

std::optional<QHash<IssueScope, IssueList>>
changedInScopes(const QHash<IssueScope, IssueList> &lists, const QString &key,
                const IssueChange &change)
{
    std::optional<QHash<IssueScope, IssueList>> result;
    for (auto list = lists.cbegin(); list != lists.cend(); ++list) {
        auto replacement = changedInList(list.value(), key, change);
        if (!replacement)
            continue;
        if (!result)
            result = lists;
        result->insert(list.key(), *std::move(replacement));
    }
    return result;
}
