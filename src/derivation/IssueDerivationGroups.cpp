#include "derivation/IssueDerivationGroups.h"

using namespace Qt::StringLiterals;

namespace {

SectionPlace placeByName(int part, const QString &name, const NameOrder &names)
{
    return {part, 0, 0, names.key(name), {}};
}

SectionPlace placeByKey(const QString &key, const NameOrder &names)
{
    return {0, 0, 0, names.key({}), key};
}

SectionHead ofStatus(const IssueStatus &status, const IssueDerivationContext &context)
{
    const auto doneFirst = context.inputs.isRecap() ? DoneFirst::Yes : DoneFirst::No;
    return {statusGroup(status),
            sectionPlace(listPlace(status, context.ranks, context.names, doneFirst))};
}

/// The user's own issues come first, unassigned issues come last. Between them, the others are in alphabetical order.
SectionHead ofAssignee(const std::optional<JiraUser> &user, const IssueDerivationContext &context)
{
    enum Part { Mine, Somebodys, Nobodys };
    const auto id = user ? user->id : QString();
    const auto name = user ? user->name : QString();
    const auto myId = context.inputs.me ? std::optional(context.inputs.me->id) : std::nullopt;
    const Part others = id.isEmpty() ? Nobodys : Somebodys;
    return {{"a:"_L1 + id, user ? name : u"Non assigné"_s, IssueGroupKind::assignee(user), {}},
            placeByName(id == myId ? Mine : others, name, context.names)};
}

SectionHead ofPriority(PriorityLevel level, const IssueDerivationContext &context)
{
    return {{"p:"_L1 + QString::number(int(level)),
             displayName(level),
             IssueGroupKind::priority(level),
             {}},
            placeByName(int(level), {}, context.names)};
}

SectionHead ofProject(const QString &key, const IssueDerivationContext &context)
{
    const auto project = context.inputs.project(key);
    return {{"j:"_L1 + key, project ? project->name : key, IssueGroupKind::project(project), {}},
            placeByKey(key, context.names)};
}

SectionHead ofAll(const IssueDerivationContext &context)
{
    return {{u"all"_s, u"Tous les tickets"_s, IssueGroupKind::all(), {}},
            placeByKey({}, context.names)};
}

} // namespace

IssueGroup statusGroup(const IssueStatus &status)
{
    return {"s:"_L1 + status.groupKey(), status.displayName(), IssueGroupKind::status(status), {}};
}

SectionPlace sectionPlace(const StatusPlace &place)
{
    return std::tuple_cat(place, std::tuple(QString()));
}

SectionRules listRules(const IssueDerivationContext &context)
{
    switch (context.inputs.grouping) {
    case Grouping::Status:
        return {&IndexedIssue::status,
                [context](const Issue &issue) { return ofStatus(issue.status, context); },
                {},
                {}};
    case Grouping::Assignee:
        return {&IndexedIssue::assignee,
                [context](const Issue &issue) { return ofAssignee(issue.assignee, context); },
                {},
                {}};
    case Grouping::Priority:
        return {
            &IndexedIssue::level,
            [context](const Issue &issue) { return ofPriority(issue.priorityLevel(), context); },
            {},
            {}};
    case Grouping::Project:
        return {&IndexedIssue::project,
                [context](const Issue &issue) { return ofProject(issue.projectKey, context); },
                {},
                {}};
    case Grouping::None:
        break;
    }
    return {&IndexedIssue::everything, [context](const Issue &) { return ofAll(context); }, {}, {}};
}
