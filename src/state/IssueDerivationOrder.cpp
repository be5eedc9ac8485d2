#include "state/IssueDerivationOrder.h"

#include <numeric>

namespace {

/// What an issue is sorted by; the position keeps the sort stable.
struct SortKey
{
    qint64 major = 0;
    qint64 minor = 0;
    quint32 row = 0;

    auto operator<=>(const SortKey &) const = default;
};

template <typename MakeKey>
IssueRows rowsSortedBy(const IssueList &issues, MakeKey makeKey)
{
    std::vector<SortKey> keys;
    keys.reserve(issues.size());
    for (const auto &issue : issues) {
        SortKey key = makeKey(*issue);
        key.row = quint32(keys.size());
        keys.push_back(key);
    }
    std::sort(keys.begin(), keys.end());
    IssueRows rows(keys.size());
    std::transform(keys.begin(), keys.end(), rows.begin(),
                   [](const SortKey &key) { return key.row; });
    return rows;
}

IssueRows serviceOrder(const IssueList &issues)
{
    IssueRows rows(issues.size());
    std::iota(rows.begin(), rows.end(), 0);
    return rows;
}

/// Sorts later instants before earlier ones.
qint64 latestFirst(const QDateTime &instant)
{
    return -instant.toMSecsSinceEpoch();
}

QDateTime lastActivityDate(const Issue &issue)
{
    if (issue.activity.isEmpty())
        return issue.updated;
    const auto isEarlier = [](const ActivityEvent &a, const ActivityEvent &b) {
        return a.date < b.date;
    };
    return std::max_element(issue.activity.begin(), issue.activity.end(), isEarlier)->date;
}

/// The place of each project key in plain text order.
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

IssueRows keyOrder(const IssueList &issues)
{
    const auto places = projectPlaces(issues);
    return rowsSortedBy(issues, [&places](const Issue &issue) {
        return SortKey{places.value(issue.projectKey), issue.number()};
    });
}

int listRank(StatusCategory category, DoneFirst doneFirst)
{
    switch (category) {
    case StatusCategory::InProgress:
        return 0;
    case StatusCategory::Todo:
        return 1;
    case StatusCategory::Backlog:
        return 2;
    case StatusCategory::Done:
        return doneFirst == DoneFirst::Yes ? -1 : 3;
    case StatusCategory::Cancelled:
        return 4;
    }
    return 4;
}

} // namespace

LocalizedKey NameOrder::key(const QString &name) const
{
    auto known = m_keys.constFind(name);
    if (known == m_keys.constEnd())
        known = m_keys.insert(name, m_comparator.key(name));
    return *known;
}

StatusRanks::StatusRanks(const QHash<QString, QList<IssueStatus>> &projectStatuses)
{
    auto projects = projectStatuses.keys();
    std::sort(projects.begin(), projects.end());
    for (const auto &project : projects) {
        const auto statuses = projectStatuses.value(project);
        for (int rank = 0; rank < statuses.size(); ++rank) {
            if (!m_ranks.contains(statuses[rank].groupKey()))
                m_ranks.insert(statuses[rank].groupKey(), rank);
        }
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

IssueRows recapOrder(const IssueList &issues)
{
    return rowsSortedBy(
        issues, [](const Issue &issue) { return SortKey{latestFirst(lastActivityDate(issue))}; });
}

IssueRows issueOrder(const IssueList &issues, Ordering ordering)
{
    switch (ordering) {
    case Ordering::Priority:
        return rowsSortedBy(issues, [](const Issue &issue) {
            return SortKey{qint64(issue.priorityLevel()), latestFirst(issue.updated)};
        });
    case Ordering::Updated:
        return rowsSortedBy(issues,
                            [](const Issue &issue) { return SortKey{latestFirst(issue.updated)}; });
    case Ordering::Created:
        return rowsSortedBy(issues,
                            [](const Issue &issue) { return SortKey{latestFirst(issue.created)}; });
    case Ordering::Key:
        return keyOrder(issues);
    case Ordering::Manual:
        break;
    }
    return serviceOrder(issues);
}
