#include "commands/OptionBuilders.h"
#include "derivation/IssueDerivationOrder.h"

#include <QSet>

#include <algorithm>

namespace {

/// A list without duplicates; of values with the same key, the first is kept.
template <typename T, typename KeyOf>
class Distinct
{
public:
    explicit Distinct(KeyOf keyOf) : m_keyOf(keyOf) {}

    void add(const T &value)
    {
        const auto key = m_keyOf(value);
        if (m_keys.contains(key))
            return;
        m_keys.insert(key);
        m_values.append(value);
    }
    void add(const QList<T> &values)
    {
        for (const T &value : values)
            add(value);
    }
    bool isEmpty() const { return m_values.isEmpty(); }
    QList<T> values() const { return m_values; }

private:
    KeyOf m_keyOf;
    QSet<QString> m_keys;
    QList<T> m_values;
};

template <typename T, typename KeyOf>
Distinct<T, KeyOf> distinctBy(KeyOf keyOf)
{
    return Distinct<T, KeyOf>(keyOf);
}

/// The values in ascending order of their keys. The sort is stable.
template <typename T, typename KeyOf>
QList<T> sortedBy(const QList<T> &values, KeyOf keyOf)
{
    using Key = std::remove_cvref_t<std::invoke_result_t<KeyOf, const T &>>;
    std::vector<std::pair<Key, qsizetype>> places;
    places.reserve(static_cast<std::size_t>(values.size()));
    for (qsizetype i = 0; i < values.size(); ++i)
        places.emplace_back(std::invoke(keyOf, values[i]), i);
    std::ranges::sort(places, std::less<>());
    QList<T> result;
    for (const auto &place : places)
        result.append(values[place.second]);
    return result;
}

/// The keys of the issues' projects, each once, in the order of the issues.
QStringList projectKeys(const IssueList &issues)
{
    QStringList keys;
    for (const SharedIssue &issue : issues)
        keys.append(issue->projectKey);
    keys.removeDuplicates();
    return keys;
}

/// The status of a single issue and those that its workflow allows; empty if the transitions are unknown.
QList<IssueStatus> allowedStatuses(const OptionInputs &inputs)
{
    if (inputs.targets.size() != 1)
        return {};
    const SharedIssue &issue = inputs.targets.front();
    const auto transitions = inputs.transitions.value(issue->key);
    if (transitions.isEmpty())
        return {};
    QList<IssueStatus> statuses{issue->status};
    for (const WorkflowTransition &transition : transitions)
        statuses.append(transition.to);
    return statuses;
}

QList<IssueStatus> projectsStatuses(const OptionInputs &inputs)
{
    QList<IssueStatus> statuses;
    for (const QString &projectKey : projectKeys(inputs.targets))
        statuses += inputs.projectStatuses.value(projectKey);
    return statuses;
}

QList<IssueStatus> seenStatuses(const OptionInputs &inputs)
{
    QList<IssueStatus> statuses;
    for (const IssueList &issues : {inputs.issues, inputs.myOpenIssues}) {
        for (const SharedIssue &issue : issues)
            statuses.append(issue->status);
    }
    return statuses;
}

/// The project that all issues belong to; empty when there is none.
QString soleProject(const IssueList &issues)
{
    const QStringList keys = projectKeys(issues);
    return keys.size() == 1 ? keys.first() : QString();
}

QList<IssueStatus> inBoardOrder(const QList<IssueStatus> &statuses, const OptionInputs &inputs)
{
    const StatusRanks ranks(inputs.projectStatuses, soleProject(inputs.targets));
    const NameOrder names(inputs.locale);
    return sortedBy(statuses,
                    [&](const IssueStatus &status) { return boardPlace(status, ranks, names); });
}

} // namespace

QList<IssueStatus> statusOptions(const OptionInputs &inputs)
{
    for (const auto &source : {allowedStatuses, projectsStatuses, seenStatuses}) {
        auto statuses =
            distinctBy<IssueStatus>([](const IssueStatus &status) { return status.groupKey(); });
        statuses.add(source(inputs));
        if (!statuses.isEmpty())
            return inBoardOrder(statuses.values(), inputs);
    }
    return {};
}

QList<JiraUser> assigneeOptions(const OptionInputs &inputs)
{
    auto users = distinctBy<JiraUser>([](const JiraUser &user) { return user.id; });
    for (const QString &projectKey : projectKeys(inputs.targets))
        users.add(inputs.assignables.value(projectKey));
    users.add(inputs.availableAssignees);
    if (inputs.me)
        users.add(*inputs.me);

    const NameOrder names(inputs.locale);
    return sortedBy(users.values(), [&](const JiraUser &user) {
        const bool isMe = inputs.me && inputs.me->id == user.id;
        return std::pair(!isMe, names.key(user.name));
    });
}

QList<IssuePriority> priorityOptions(const OptionInputs &inputs)
{
    if (!inputs.priorities.isEmpty())
        return inputs.priorities;
    auto priorities =
        distinctBy<IssuePriority>([](const IssuePriority &priority) { return priority.id(); });
    for (const SharedIssue &issue : inputs.issues) {
        if (issue->priority)
            priorities.add(*issue->priority);
    }
    return sortedBy(priorities.values(), &IssuePriority::level);
}
