#include "derivation/IssueDerivationBoard.h"

#include "derivation/IssueDerivationSort.h"

#include <QSet>

namespace {

/// The statuses of the project's workflow; if several share a group, only the first. Empty if the scope is not a
/// project.
QList<IssueStatus> workflow(const IssueDerivationInputs &inputs)
{
    const auto *project = inputs.scope.asProject();
    if (!project)
        return {};
    QSet<QString> keys;
    QList<IssueStatus> statuses;
    for (const auto &status : inputs.projectStatuses.value(project->key)) {
        if (keys.contains(status.groupKey()))
            continue;
        keys.insert(status.groupKey());
        statuses.append(status);
    }
    return statuses;
}

SectionHead columnOf(const IssueStatus &status, const IssueDerivationContext &context)
{
    return {statusGroup(status), sectionPlace(boardPlace(status, context.ranks, context.names))};
}

} // namespace

QList<IssueStatus> inBoardOrder(const QList<IssueStatus> &statuses, const StatusRanks &ranks,
                                const NameOrder &names)
{
    return sortedByKey(statuses,
                       [&](const IssueStatus &status) { return boardPlace(status, ranks, names); });
}

SectionRules boardRules(const IssueDerivationContext &context)
{
    SectionRules rules{&IndexedIssue::status,
                       [context](const Issue &issue) { return columnOf(issue.status, context); },
                       {},
                       {}};
    for (const auto &status : workflow(context.inputs)) {
        const quint32 number = context.index.statusNumber(status.groupKey());
        if (context.inputs.showsClosed() || !isClosed(status.category()))
            rules.fixed.push_back({number, columnOf(status, context)});
        else
            rules.hidden.push_back(number);
    }
    return rules;
}
