#include "state/IssueDerivationGroups.h"

#include "state/IssueDerivationSort.h"

using namespace Qt::StringLiterals;

namespace {

template <typename MakeGroup>
QList<IssueGroup> groupsOf(const QList<IssueList> &lists, MakeGroup makeGroup)
{
    QList<IssueGroup> groups;
    groups.reserve(lists.size());
    for (const auto &list : lists)
        groups.append(makeGroup(list));
    return groups;
}

IssueGroup assigneeGroup(const IssueList &issues)
{
    const auto user = issues.first()->assignee;
    return {"a:"_L1 + (user ? user->id : QString()), user ? user->name : u"Non assigné"_s,
            IssueGroupKind::assignee(user), issues};
}

IssueGroup priorityGroup(const IssueList &issues)
{
    const auto level = issues.first()->priorityLevel();
    return {"p:"_L1 + QString::number(int(level)), displayName(level),
            IssueGroupKind::priority(level), issues};
}

IssueGroup projectGroup(const IssueList &issues, const IssueDerivationInputs &inputs)
{
    const auto &key = issues.first()->projectKey;
    const auto project = inputs.project(key);
    return {"j:"_L1 + key, project ? project->name : key, IssueGroupKind::project(project), issues};
}

QList<IssueGroup> statusGroups(const IssueRows &visible, const IssueDerivationContext &context)
{
    const auto doneFirst = context.inputs.isRecap() ? DoneFirst::Yes : DoneFirst::No;
    const auto place = [&](const IssueList &issues) {
        return listPlace(issues.first()->status, context.ranks, context.names, doneFirst);
    };
    return groupsOf(
        sortedByKey(issuesByStatus(visible, context.index), place),
        [](const IssueList &issues) { return statusGroup(issues.first()->status, issues); });
}

/// My own issues lead, nobody's come last, people stand in alphabetical order between them.
QList<IssueGroup> assigneeGroups(const IssueRows &visible, const IssueDerivationContext &context)
{
    enum Part { Mine, Somebodys, Nobodys };
    const auto myId = context.inputs.me ? std::optional(context.inputs.me->id) : std::nullopt;
    const auto part = [&myId](const QString &id) {
        if (id == myId)
            return Mine;
        return id.isEmpty() ? Nobodys : Somebodys;
    };
    const auto place = [&](const IssueList &issues) {
        const auto user = issues.first()->assigneeOrEmpty();
        return std::pair(part(user.id), context.names.key(user.name));
    };
    return groupsOf(sortedByKey(issuesBy(&IndexedIssue::assignee, visible, context.index), place),
                    assigneeGroup);
}

QList<IssueGroup> priorityGroups(const IssueRows &visible, const IssueDerivationContext &context)
{
    const auto place = [](const IssueList &issues) { return issues.first()->priorityLevel(); };
    return groupsOf(sortedByKey(issuesBy(&IndexedIssue::level, visible, context.index), place),
                    priorityGroup);
}

QList<IssueGroup> projectGroups(const IssueRows &visible, const IssueDerivationContext &context)
{
    const auto place = [](const IssueList &issues) { return issues.first()->projectKey; };
    return groupsOf(
        sortedByKey(issuesBy(&IndexedIssue::project, visible, context.index), place),
        [&context](const IssueList &issues) { return projectGroup(issues, context.inputs); });
}

QList<IssueGroup> oneGroup(const IssueRows &visible, const IssueDerivationContext &context)
{
    IssueList issues;
    issues.reserve(visible.size());
    for (const auto row : visible)
        issues.append(context.index.issues()[row]);
    return {{u"all"_s, u"Tous les tickets"_s, IssueGroupKind::all(), issues}};
}

} // namespace

QList<IssueList> issuesBy(quint32 IndexedIssue::*number, const IssueRows &rows,
                          const IssueIndex &index)
{
    constexpr qsizetype none = -1;
    const auto count =
        std::max({index.statusCount(), index.assigneeCount(), index.projectCount(), 5u});
    std::vector<qsizetype> sizes(count, 0);
    for (const auto row : rows)
        ++sizes[index.rows()[row].*number];
    std::vector<qsizetype> places(count, none);
    QList<IssueList> lists;
    for (const auto row : rows) {
        const auto which = index.rows()[row].*number;
        if (places[which] == none) {
            places[which] = lists.size();
            lists.emplaceBack().reserve(sizes[which]);
        }
        lists[places[which]].append(index.issues()[row]);
    }
    return lists;
}

QList<IssueList> issuesByStatus(const IssueRows &rows, const IssueIndex &index)
{
    return issuesBy(&IndexedIssue::status, rows, index);
}

IssueGroup statusGroup(const IssueStatus &status, const IssueList &issues)
{
    return {"s:"_L1 + status.groupKey(), status.displayName(), IssueGroupKind::status(status),
            issues};
}

QList<IssueGroup> listGroups(const IssueRows &visible, const IssueDerivationContext &context)
{
    if (visible.empty())
        return {};
    switch (context.inputs.grouping) {
    case Grouping::Status:
        return statusGroups(visible, context);
    case Grouping::Assignee:
        return assigneeGroups(visible, context);
    case Grouping::Priority:
        return priorityGroups(visible, context);
    case Grouping::Project:
        return projectGroups(visible, context);
    case Grouping::None:
        break;
    }
    return oneGroup(visible, context);
}
