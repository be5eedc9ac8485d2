#include "derivation/IssueDerivationOrder.h"

#include <algorithm>
#include <numeric>

namespace {

/// The sort key of an issue. The last element is the row in the service's list, which makes every sort key unique and
/// the order stable.
struct SortKey
{
    qint64 major = 0;
    qint64 minor = 0;
    quint32 row = 0;

    auto operator<=>(const SortKey &) const = default;
};

/// Where a sort of `count` rows starts: `earlier`, if it is an order of that many rows, else the service's order.
IssueRows startOfSort(std::size_t count, const IssueRows &earlier)
{
    if (earlier.size() == count)
        return earlier;
    IssueRows rows(count);
    std::iota(rows.begin(), rows.end(), 0);
    return rows;
}

template <typename KeyOf>
IssueRows sortedBy(const IssueIndex &index, const IssueRows &earlier, KeyOf keyOf)
{
    auto rows = startOfSort(index.rows().size(), earlier);
    std::vector<SortKey> keys;
    keys.reserve(rows.size());
    for (const auto row : rows) {
        keys.push_back(keyOf(row));
        keys.back().row = row;
    }
    // Most edits change no sort key, and then the earlier order still holds.
    if (!std::ranges::is_sorted(keys))
        std::ranges::sort(keys);
    std::ranges::transform(keys, rows.begin(), &SortKey::row);
    return rows;
}

/// Sorts later instants before earlier ones.
qint64 latestFirst(qint64 instant)
{
    return -instant;
}

QDateTime lastActivityDate(const Issue &issue)
{
    const auto event = issue.lastActivity();
    return event ? event->date : issue.updated;
}

/// The position of each project key in plain text order.
QHash<QString, qint64> projectPlaces(const IssueList &issues)
{
    QHash<QString, qint64> places;
    for (const auto &issue : issues)
        places.insert(issue->projectKey, 0);
    auto keys = places.keys();
    std::sort(keys.begin(), keys.end());
    for (qsizetype place = 0; place < keys.size(); ++place)
        places[keys[place]] = place;
    return places;
}

IssueRows keyOrder(const IssueIndex &index, const IssueRows &earlier)
{
    const auto places = projectPlaces(index.issues());
    return sortedBy(index, earlier, [&](quint32 row) {
        const auto &issue = index.issues()[row];
        return SortKey{places.value(issue->projectKey), issue->number()};
    });
}

SortKey recapKey(const Issue &issue)
{
    return {latestFirst(lastActivityDate(issue).toMSecsSinceEpoch())};
}

/// The sort key for every ordering except the one by issue key, which depends on the projects of the whole list.
SortKey keyIn(Ordering ordering, const IndexedIssue &issue)
{
    switch (ordering) {
    case Ordering::Priority:
        return {qint64(issue.level), latestFirst(issue.updated)};
    case Ordering::Updated:
        return {latestFirst(issue.updated)};
    case Ordering::Created:
        return {latestFirst(issue.created)};
    case Ordering::Key:
    case Ordering::Manual:
        break;
    }
    return {};
}

int listRank(StatusCategory category, DoneFirst doneFirst)
{
    const bool leads = category == StatusCategory::Done && doneFirst == DoneFirst::Yes;
    return leads ? -1 : workRank(category);
}

} // namespace

int workRank(StatusCategory category)
{
    switch (category) {
    case StatusCategory::InProgress:
        return 0;
    case StatusCategory::Todo:
        return 1;
    case StatusCategory::Backlog:
        return 2;
    case StatusCategory::Done:
        return 3;
    case StatusCategory::Cancelled:
        return 4;
    }
    Q_UNREACHABLE();
}

LocalizedKey NameOrder::key(const QString &name) const
{
    auto known = m_keys.constFind(name);
    if (known == m_keys.constEnd())
        known = m_keys.insert(name, m_comparator.key(name));
    return *known;
}

StatusRanks::StatusRanks(const QHash<QString, QList<IssueStatus>> &projectStatuses,
                         const QString &ownProject)
{
    add(projectStatuses.value(ownProject));
    auto projects = projectStatuses.keys();
    std::sort(projects.begin(), projects.end());
    for (const auto &project : projects)
        add(projectStatuses.value(project));
}

void StatusRanks::add(const QList<IssueStatus> &workflow)
{
    for (int rank = 0; rank < workflow.size(); ++rank) {
        if (!m_ranks.contains(workflow[rank].groupKey()))
            m_ranks.insert(workflow[rank].groupKey(), rank);
    }
}

StatusPlace listPlace(const IssueStatus &status, const StatusRanks &ranks, const NameOrder &names,
                      DoneFirst doneFirst)
{
    return {listRank(status.category(), doneFirst), -status.progress(), ranks.of(status.groupKey()),
            names.key(status.name())};
}

StatusPlace boardPlace(const IssueStatus &status, const StatusRanks &ranks, const NameOrder &names)
{
    return {int(status.category()), status.progress(), ranks.of(status.groupKey()),
            names.key(status.name())};
}

IssueRows recapOrder(const IssueIndex &index, const IssueRows &earlier)
{
    return sortedBy(index, earlier, [&](quint32 row) { return recapKey(*index.issues()[row]); });
}

IssueRows issueOrder(const IssueIndex &index, Ordering ordering, const IssueRows &earlier)
{
    if (ordering == Ordering::Key)
        return keyOrder(index, earlier);
    return sortedBy(index, earlier,
                    [&](quint32 row) { return keyIn(ordering, index.rows()[row]); });
}
