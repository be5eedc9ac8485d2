#include "state/composing/NewIssue.h"

#include "state/edits/DocumentComposing.h"

#include <algorithm>

namespace {

std::optional<IssueType> firstOfKind(const QList<IssueType> &types, IssueType::Kind kind)
{
    const auto found = std::ranges::find(types, kind, &IssueType::kind);
    return found == types.end() ? std::nullopt : std::optional(*found);
}

} // namespace

QList<IssueType> creatableTypes(const std::optional<Project> &details,
                                const std::optional<Project> &listed)
{
    QList<IssueType> types = details  ? details->issueTypes
                             : listed ? listed->issueTypes
                                      : QList<IssueType>();
    types.removeIf([](const IssueType &type) { return type.isSubtask; });
    return types;
}

std::optional<IssueType> defaultType(const QList<IssueType> &types)
{
    for (const auto kind : {IssueType::Kind::Task, IssueType::Kind::Story}) {
        if (const auto found = firstOfKind(types, kind))
            return found;
    }
    return types.isEmpty() ? std::nullopt : std::optional(types.front());
}

bool canCreate(const NewIssue &issue)
{
    return !issue.projectKey.isEmpty() && !issue.summary.trimmed().isEmpty();
}

IssueDraft issueDraft(const NewIssue &issue, const QList<JiraUser> &users)
{
    const QString details = issue.details.trimmed();
    IssueDraft draft{.projectKey = issue.projectKey,
                     .issueTypeID = issue.typeID,
                     .summary = issue.summary.trimmed(),
                     .labels = issue.labels};
    if (!details.isEmpty())
        draft.description = composedDocument(details, users);
    if (issue.priority)
        draft.priorityID = issue.priority->id();
    if (issue.assignee)
        draft.assigneeID = issue.assignee->id;
    return draft;
}
