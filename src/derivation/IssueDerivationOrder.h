#pragma once

#include "model/Issue.h"
#include "model/LocalizedComparator.h"

#include <QHash>
#include <QLocale>

#include <tuple>
#include <vector>

/// The localised order of names. Remembers each name it was asked for, so that a list is sorted by comparing bytes.
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
    /// The position of a status that no workflow has: behind all others.
    static constexpr int unknown = 999;

    StatusRanks() = default;
    /// Of projects that share a status, `ownProject` counts before all others, and among those the one with the first
    /// key, in plain text order. No project has an empty key.
    explicit StatusRanks(const QHash<QString, QList<IssueStatus>> &projectStatuses,
                         const QString &ownProject = {});

    int of(const QString &groupKey) const { return m_ranks.value(groupKey, unknown); }

private:
    void add(const QList<IssueStatus> &workflow);

    QHash<QString, int> m_ranks;
};

/// The position of a category in lists, which begin with the work in progress: 0 for `InProgress`, then `Todo`,
/// `Backlog`, `Done`, and 4 for `Cancelled`.
int workRank(StatusCategory category);

/// Where a status stands among others: smaller is earlier.
using StatusPlace = std::tuple<int, double, int, LocalizedKey>;

/// Whether closed work leads a list, as in a recap.
enum class DoneFirst { No, Yes };

/// The place of a status group in a list: work under way leads, further progress first.
StatusPlace listPlace(const IssueStatus &status, const StatusRanks &ranks, const NameOrder &names,
                      DoneFirst doneFirst);
/// The place of a column on a board: along the workflow from left to right.
StatusPlace boardPlace(const IssueStatus &status, const StatusRanks &ranks, const NameOrder &names);

/// Positions in a list of issues.
using IssueRows = std::vector<quint32>;

/// The issues in the order of their last activity, latest first; an issue without events counts as active when it was
/// last updated. Stable.
IssueRows recapOrder(const IssueList &issues);
/// The issues in the given order. Stable.
IssueRows issueOrder(const IssueList &issues, Ordering ordering);
