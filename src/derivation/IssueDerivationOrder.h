#pragma once

#include "derivation/IssueDerivationIndex.h"
#include "model/LocalizedComparator.h"

#include <QHash>
#include <QLocale>

#include <tuple>
#include <vector>

/// The localised order of names. Caches the sort key of each name, so that a list is sorted by comparing bytes.
class NameOrder
{
public:
    explicit NameOrder(const QLocale &locale) : m_comparator(locale) {}

    LocalizedKey key(const QString &name) const;

private:
    LocalizedComparator m_comparator;
    mutable QHash<QString, LocalizedKey> m_keys;
};

/// Positions of statuses in the workflows of their projects.
class StatusRanks
{
public:
    /// The position of a status that is in no workflow: after all others.
    static constexpr int unknown = 999;

    StatusRanks() = default;
    /// If several projects share a status, its position is taken from `ownProject` if that has the status, else from
    /// the project whose key comes first in plain text order. No project has an empty key, so an empty `ownProject`
    /// means none.
    explicit StatusRanks(const QHash<QString, QList<IssueStatus>> &projectStatuses,
                         const QString &ownProject = {});

    int of(const QString &groupKey) const { return m_ranks.value(groupKey, unknown); }

private:
    void add(const QList<IssueStatus> &workflow);

    QHash<QString, int> m_ranks;
};

/// The position of a category in lists, where work in progress comes first: 0 for `InProgress`, then `Todo`, `Backlog`,
/// `Done`, and 4 for `Cancelled`.
int workRank(StatusCategory category);

/// The sort key of a status: smaller comes first.
using StatusPlace = std::tuple<int, double, int, LocalizedKey>;

/// Whether completed work comes first in a list, as in a recap.
enum class DoneFirst { No, Yes };

/// The sort key of a status group in a list: work in progress comes first, and within a category the statuses with the
/// most progress.
StatusPlace listPlace(const IssueStatus &status, const StatusRanks &ranks, const NameOrder &names,
                      DoneFirst doneFirst);
/// The sort key of a column on a board: in the order of the workflow from left to right.
StatusPlace boardPlace(const IssueStatus &status, const StatusRanks &ranks, const NameOrder &names);

/// Positions in a list of issues.
using IssueRows = std::vector<quint32>;

/// The issues in the order of their last activity, latest first. An issue without events is sorted by its last update.
/// The sort is stable. It starts from `earlier`, an earlier order of the list: this does not change the result, but
/// sorting is faster when few issues have another place.
IssueRows recapOrder(const IssueIndex &index, const IssueRows &earlier = {});
/// The issues in the given order. The sort is stable, and starts from `earlier` as above.
IssueRows issueOrder(const IssueIndex &index, Ordering ordering, const IssueRows &earlier = {});
