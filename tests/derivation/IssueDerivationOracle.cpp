#include "derivation/IssueDerivationOracle.h"

#include "model/LocalizedComparator.h"
#include "model/TextFolding.h"

#include <map>

using namespace Qt::StringLiterals;

namespace Oracle {
namespace {

bool containsText(const Issue &issue, const QString &text)
{
    if (localizedContains(issue.key, text) || localizedContains(issue.summary, text))
        return true;
    for (const auto &label : issue.labels) {
        if (localizedContains(label, text))
            return true;
    }
    return issue.assignee && localizedContains(issue.assignee->name, text);
}

QDateTime activityDate(const Issue &issue)
{
    const auto event = issue.lastActivity();
    return event ? event->date : issue.updated;
}

bool goesBefore(const Issue &a, const Issue &b, const IssueDerivationInputs &inputs)
{
    if (inputs.scope.asActivity())
        return activityDate(a) > activityDate(b);
    switch (inputs.ordering) {
    case Ordering::Priority:
        return a.priorityLevel() == b.priorityLevel() ? a.updated > b.updated
                                                      : a.priorityLevel() < b.priorityLevel();
    case Ordering::Updated:
        return a.updated > b.updated;
    case Ordering::Created:
        return a.created > b.created;
    case Ordering::Key:
        return a.projectKey == b.projectKey ? a.number() < b.number() : a.projectKey < b.projectKey;
    case Ordering::Manual:
        break;
    }
    return false;
}

int statusRank(const IssueStatus &status, const IssueDerivationInputs &inputs)
{
    std::map<QString, QList<IssueStatus>> sorted;
    // The empty text sorts before all project keys, so the list's own project comes first.
    if (const auto *project = inputs.scope.asProject())
        sorted[QString()] = inputs.projectStatuses.value(project->key);
    for (auto entry = inputs.projectStatuses.begin(); entry != inputs.projectStatuses.end();
         ++entry)
        sorted[entry.key()] = entry.value();
    for (const auto &[key, statuses] : sorted) {
        for (int rank = 0; rank < statuses.size(); ++rank) {
            if (statuses[rank].groupKey() == status.groupKey())
                return rank;
        }
    }
    return 999;
}

int categoryRank(StatusCategory category, bool isRecap)
{
    const QHash<StatusCategory, int> ranks{{StatusCategory::InProgress, 0},
                                           {StatusCategory::Todo, 1},
                                           {StatusCategory::Backlog, 2},
                                           {StatusCategory::Done, isRecap ? -1 : 3},
                                           {StatusCategory::Cancelled, 4}};
    return ranks[category];
}

bool rankBefore(const IssueStatus &a, const IssueStatus &b, const IssueDerivationInputs &inputs)
{
    if (statusRank(a, inputs) != statusRank(b, inputs))
        return statusRank(a, inputs) < statusRank(b, inputs);
    return localizedCompare(a.name(), b.name(), inputs.locale) < 0;
}

bool listOrder(const IssueStatus &a, const IssueStatus &b, const IssueDerivationInputs &inputs)
{
    const bool isRecap = inputs.scope.asActivity() != nullptr;
    if (a.category() != b.category())
        return categoryRank(a.category(), isRecap) < categoryRank(b.category(), isRecap);
    return a.progress() != b.progress() ? a.progress() > b.progress() : rankBefore(a, b, inputs);
}

bool boardOrder(const IssueStatus &a, const IssueStatus &b, const IssueDerivationInputs &inputs)
{
    if (a.category() != b.category())
        return int(a.category()) < int(b.category());
    return a.progress() != b.progress() ? a.progress() < b.progress() : rankBefore(a, b, inputs);
}

QString groupKey(const Issue &issue, Grouping grouping)
{
    switch (grouping) {
    case Grouping::Status:
        return issue.status.groupKey();
    case Grouping::Assignee:
        return issue.assignee ? issue.assignee->id : QString();
    case Grouping::Priority:
        return QString::number(int(issue.priorityLevel()));
    case Grouping::Project:
        return issue.projectKey;
    case Grouping::None:
        break;
    }
    return {};
}

bool assigneeOrder(const QString &a, const QString &b, const QString &nameA, const QString &nameB,
                   const IssueDerivationInputs &inputs)
{
    if (a == b)
        return false;
    if (inputs.me && (inputs.me->id == a || inputs.me->id == b))
        return inputs.me->id == a;
    if (a.isEmpty() || b.isEmpty())
        return b.isEmpty();
    return localizedCompare(nameA, nameB, inputs.locale) < 0;
}

bool groupOrder(const IssueList &a, const IssueList &b, const IssueDerivationInputs &inputs)
{
    const Issue &first = *a.first();
    const Issue &second = *b.first();
    if (inputs.grouping == Grouping::Status)
        return listOrder(first.status, second.status, inputs);
    const auto keyA = groupKey(first, inputs.grouping);
    const auto keyB = groupKey(second, inputs.grouping);
    if (inputs.grouping == Grouping::Assignee)
        return assigneeOrder(keyA, keyB, first.assigneeOrEmpty().name,
                             second.assigneeOrEmpty().name, inputs);
    return keyA < keyB;
}

std::optional<Project> projectOf(const QString &key, const IssueDerivationInputs &inputs)
{
    if (inputs.projectDetails.contains(key))
        return inputs.projectDetails[key];
    for (const auto &project : inputs.projects) {
        if (project.key == key)
            return project;
    }
    return std::nullopt;
}

QString statusTitle(const IssueStatus &status)
{
    return IssueStatus::canonicalLabels().value(status.groupKey(), status.name());
}

IssueGroup groupOf(const IssueList &issues, const IssueDerivationInputs &inputs)
{
    const Issue &first = *issues.first();
    const auto key = groupKey(first, inputs.grouping);
    const auto project = projectOf(first.projectKey, inputs);
    const QStringList levels{u"Urgente"_s, u"Haute"_s, u"Moyenne"_s, u"Basse"_s,
                             u"Aucune priorité"_s};
    switch (inputs.grouping) {
    case Grouping::Status:
        return {u"s:"_s + key, statusTitle(first.status), IssueGroupKind::status(first.status),
                issues};
    case Grouping::Assignee:
        return {u"a:"_s + key, first.assignee ? first.assignee->name : u"Non assigné"_s,
                IssueGroupKind::assignee(first.assignee), issues};
    case Grouping::Priority:
        return {u"p:"_s + key, levels[key.toInt()], IssueGroupKind::priority(first.priorityLevel()),
                issues};
    case Grouping::Project:
        return {u"j:"_s + key, project ? project->name : key, IssueGroupKind::project(project),
                issues};
    case Grouping::None:
        break;
    }
    return {u"all"_s, u"Tous les tickets"_s, IssueGroupKind::all(), issues};
}

QList<IssueList> partitioned(const IssueList &issues, Grouping grouping)
{
    QList<IssueList> lists;
    for (const auto &issue : issues) {
        const auto hasKey = [&](const IssueList &list) {
            return groupKey(*list.first(), grouping) == groupKey(*issue, grouping);
        };
        const auto list = std::find_if(lists.begin(), lists.end(), hasKey);
        if (list == lists.end())
            lists.append(IssueList{issue});
        else
            list->append(issue);
    }
    return lists;
}

/// A stable insertion sort: each value is inserted after all values that it does not precede.
template <typename T, typename Before>
void sort(QList<T> &values, Before isBefore)
{
    QList<T> sorted;
    for (const auto &value : values)
        sorted.insert(std::upper_bound(sorted.begin(), sorted.end(), value, isBefore), value);
    values = sorted;
}

template <typename T, typename Same>
void enter(QList<T> &values, const T &value, Same isSame)
{
    for (const auto &known : values) {
        if (isSame(known, value))
            return;
    }
    values.append(value);
}

bool sameGroupKey(const IssueStatus &a, const IssueStatus &b)
{
    return a.groupKey() == b.groupKey();
}

} // namespace

IssueList visibleIssues(const IssueDerivationInputs &inputs)
{
    const auto text = inputs.filterText.trimmed();
    IssueList visible;
    QSet<QString> met;
    for (const auto &issue : inputs.issues) {
        if (met.contains(issue->key))
            continue;
        met.insert(issue->key);
        if (isClosed(issue->status.category()) && !inputs.showCompleted &&
            !inputs.scope.asActivity())
            continue;
        if (inputs.filters.matches(*issue) && (text.isEmpty() || containsText(*issue, text)))
            visible.append(issue);
    }
    sort(visible, [&inputs](const SharedIssue &a, const SharedIssue &b) {
        return goesBefore(*a, *b, inputs);
    });
    return visible;
}

QList<IssueGroup> groups(const IssueDerivationInputs &inputs)
{
    auto lists = partitioned(visibleIssues(inputs), inputs.grouping);
    sort(lists,
         [&inputs](const IssueList &a, const IssueList &b) { return groupOrder(a, b, inputs); });
    QList<IssueGroup> groups;
    for (const auto &list : lists)
        groups.append(groupOf(list, inputs));
    return groups;
}

QList<IssueGroup> boardColumns(const IssueDerivationInputs &inputs)
{
    const auto visible = visibleIssues(inputs);
    QList<IssueStatus> statuses;
    if (const auto *project = inputs.scope.asProject()) {
        for (const auto &status : inputs.projectStatuses.value(project->key))
            enter(statuses, status, sameGroupKey);
    }
    for (const auto &issue : visible)
        enter(statuses, issue->status, sameGroupKey);
    if (!inputs.showCompleted && !inputs.scope.asActivity())
        statuses.removeIf([](const IssueStatus &status) { return isClosed(status.category()); });
    sort(statuses, [&inputs](const IssueStatus &a, const IssueStatus &b) {
        return boardOrder(a, b, inputs);
    });
    QList<IssueGroup> columns;
    for (const auto &status : statuses) {
        IssueList issues = visible;
        issues.removeIf(
            [&status](const SharedIssue &issue) { return !sameGroupKey(issue->status, status); });
        columns.append({u"s:"_s + status.groupKey(), statusTitle(status),
                        IssueGroupKind::status(status), issues});
    }
    return columns;
}

QStringList flatVisibleKeys(const IssueDerivationInputs &inputs)
{
    const bool isBoard = inputs.layout == LayoutMode::Board;
    QStringList keys;
    for (const auto &group : isBoard ? boardColumns(inputs) : groups(inputs)) {
        for (const auto &issue : group.issues) {
            if (isBoard || !inputs.collapsedGroups.contains(group.id))
                keys.append(issue->key);
        }
    }
    return keys;
}

IssueDerivationMenus menus(const IssueDerivationInputs &inputs)
{
    IssueDerivationMenus menus;
    for (const auto &issue : inputs.issues) {
        enter(menus.statuses, issue->status, sameGroupKey);
        if (issue->assignee)
            enter(menus.assignees, *issue->assignee,
                  [](const auto &a, const auto &b) { return a.id == b.id; });
        for (const auto &label : issue->labels)
            enter<QString>(menus.labels, label, std::equal_to<>());
        if (issue->type)
            enter(menus.types, *issue->type,
                  [](const auto &a, const auto &b) { return a.name == b.name; });
    }
    const LocalizedComparator isBefore(inputs.locale);
    const auto byName = [&isBefore](const auto &a, const auto &b) {
        return isBefore(a.name, b.name);
    };
    sort(menus.statuses, [&inputs](const IssueStatus &a, const IssueStatus &b) {
        return boardOrder(a, b, inputs);
    });
    sort(menus.assignees, byName);
    sort(menus.labels, isBefore);
    sort(menus.types, byName);
    return menus;
}

} // namespace Oracle
