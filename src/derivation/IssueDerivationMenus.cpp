#include "derivation/IssueDerivationMenus.h"

#include "derivation/IssueDerivationBoard.h"
#include "derivation/IssueDerivationSort.h"

#include <QSet>

namespace {

/// Values without duplicates, in the order in which they were first entered.
template <typename T>
class Distinct
{
public:
    void enter(const QString &key, const T &value)
    {
        if (m_keys.contains(key))
            return;
        m_keys.insert(key);
        m_values.append(value);
    }

    QList<T> values() const { return m_values; }

    template <typename NameOf>
    QList<T> sortedByName(const NameOrder &names, NameOf nameOf) const
    {
        return sortedByKey(m_values, [&](const T &value) { return names.key(nameOf(value)); });
    }

private:
    QSet<QString> m_keys;
    QList<T> m_values;
};

} // namespace

IssueDerivationMenus filterMenus(const IssueList &issues, const StatusRanks &ranks,
                                 const NameOrder &names)
{
    Distinct<IssueStatus> statuses;
    Distinct<JiraUser> assignees;
    Distinct<QString> labels;
    Distinct<IssueType> types;
    for (const auto &issue : issues) {
        statuses.enter(issue->status.groupKey(), issue->status);
        if (issue->assignee)
            assignees.enter(issue->assignee->id, *issue->assignee);
        for (const auto &label : issue->labels)
            labels.enter(label, label);
        if (issue->type)
            types.enter(issue->type->name, *issue->type);
    }
    return {inBoardOrder(statuses.values(), ranks, names),
            assignees.sortedByName(names, [](const JiraUser &user) { return user.name; }),
            labels.sortedByName(names, [](const QString &label) { return label; }),
            types.sortedByName(names, [](const IssueType &type) { return type.name; })};
}
