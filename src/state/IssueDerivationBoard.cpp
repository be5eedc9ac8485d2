#include "state/IssueDerivationBoard.h"

#include "state/IssueDerivationSort.h"

namespace {

/// One status for each group key, the first that was entered.
class Representatives
{
public:
    void enter(const IssueStatus &status)
    {
        if (m_keys.contains(status.groupKey()))
            return;
        m_keys.insert(status.groupKey());
        m_statuses.append(status);
    }

    QList<IssueStatus> statuses() const { return m_statuses; }

private:
    QSet<QString> m_keys;
    QList<IssueStatus> m_statuses;
};

QList<IssueStatus> columnStatuses(const QList<IssueList> &lists,
                                  const IssueDerivationInputs &inputs)
{
    Representatives representatives;
    if (const auto *project = inputs.scope.asProject()) {
        for (const auto &status : inputs.projectStatuses.value(project->key))
            representatives.enter(status);
    }
    for (const auto &list : lists)
        representatives.enter(list.first()->status);
    auto statuses = representatives.statuses();
    if (!inputs.showsClosed())
        statuses.removeIf([](const IssueStatus &status) { return isClosed(status.category()); });
    return statuses;
}

} // namespace

QList<IssueStatus> inBoardOrder(const QList<IssueStatus> &statuses, const StatusRanks &ranks,
                                const NameOrder &names)
{
    return sortedByKey(statuses,
                       [&](const IssueStatus &status) { return boardPlace(status, ranks, names); });
}

QList<IssueGroup> boardColumns(const IssueRows &visible, const IssueDerivationContext &context)
{
    const auto lists = issuesByStatus(visible, context.index);
    QHash<QString, IssueList> issues;
    for (const auto &list : lists)
        issues.insert(list.first()->status.groupKey(), list);
    QList<IssueGroup> columns;
    for (const auto &status :
         inBoardOrder(columnStatuses(lists, context.inputs), context.ranks, context.names))
        columns.append(statusGroup(status, issues.value(status.groupKey())));
    return columns;
}
