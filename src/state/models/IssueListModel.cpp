#include "state/models/IssueListModel.h"

#include "model/OneLineText.h"
#include "model/dates/DateLabels.h"
#include "model/dates/DueDates.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The due date for screen readers, such as ", échéance le 3 mars", with the year if it is another one.
QString dueWords(const std::optional<QDate> &due, const QDate &today, const QLocale &locale)
{
    if (!due)
        return {};
    return u", échéance le "_s + (due->year() == today.year() ? dayAndMonth(*due, locale)
                                                              : dayMonthAndYear(*due, locale));
}

} // namespace

IssueListModel::IssueListModel(UserCalendar calendar, QDateTime now, QObject *parent)
    : KeyedListModel(parent), m_calendar(std::move(calendar)), m_now(std::move(now))
{
}

void IssueListModel::setGroups(const QList<IssueGroup> &groups, const QSet<QString> &collapsed)
{
    setRows(issueListRows(groups, collapsed));
}

void IssueListModel::setIssues(const IssueList &issues)
{
    setRows(issueListRows(issues));
}

void IssueListModel::setRows(IssueListRows list)
{
    if (list.rows == rows())
        return;
    Q_EMIT aboutToUpdate();
    // The rows before the update refer to what was shown until now.
    update(std::exchange(list.rows, {}));
    m_shown = std::move(list);
    // The positions in the accessible names may have changed.
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {AccessibleNameRole});
    ++m_revision;
    Q_EMIT updated();
}

void IssueListModel::setFocusedKey(const QString &key)
{
    moveMark(m_focusedKey, key, IsFocusedRole);
}

void IssueListModel::setOpenKey(const QString &key)
{
    moveMark(m_openKey, key, IsOpenRole);
}

void IssueListModel::moveMark(QString &mark, const QString &key, Role role)
{
    if (mark == key)
        return;
    const auto before = rowOf(std::exchange(mark, key));
    const auto after = rowOf(key);
    for (const auto row : {before, after}) {
        if (row)
            notifyChanged({*row}, {role});
    }
}

void IssueListModel::setCheckedKeys(const QSet<QString> &keys)
{
    const auto before = std::exchange(m_checkedKeys, keys);
    std::vector<int> rows;
    const auto collect = [&rows, this](const QSet<QString> &some, const QSet<QString> &others) {
        for (const auto &key : some) {
            if (const auto row = others.contains(key) ? std::nullopt : rowOf(key))
                rows.push_back(*row);
        }
    };
    collect(before, keys);
    collect(keys, before);
    std::sort(rows.begin(), rows.end());
    notifyChanged(rows, {IsCheckedRole});
}

void IssueListModel::setNow(const QDateTime &now)
{
    if (m_now == now)
        return;
    QList<int> changed{UpdatedTextRole, DueTextRole, IsOverdueRole};
    if (m_calendar.day(m_now) != m_calendar.day(now))
        changed.append(AccessibleNameRole);
    m_now = now;
    if (!rows().isEmpty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), changed);
}

void IssueListModel::setCalendar(const UserCalendar &calendar)
{
    m_calendar = calendar;
    if (!rows().isEmpty())
        Q_EMIT dataChanged(
            index(0), index(rowCount() - 1),
            {UpdatedTextRole, DueTextRole, IsOverdueRole, DueTooltipRole, AccessibleNameRole});
}

void IssueListModel::refreshBadges()
{
    if (!rows().isEmpty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {BadgeRole});
}

int IssueListModel::headerRowOf(int row) const
{
    const auto &headers = headerRows();
    const auto after = std::ranges::upper_bound(headers, row);
    return row >= rowCount() || after == headers.begin() ? -1 : *std::prev(after);
}

int IssueListModel::headerRowAfter(int row) const
{
    const auto &headers = headerRows();
    const auto after = std::ranges::upper_bound(headers, row);
    return after == headers.end() ? -1 : *after;
}

int IssueListModel::headersAbove(int row) const
{
    const auto &headers = headerRows();
    return int(std::ranges::lower_bound(headers, row) - headers.begin());
}

const std::vector<int> &IssueListModel::headerRows() const
{
    const auto compute = [this] {
        std::vector<int> headers;
        for (int row = 0; row < rowCount(); ++row) {
            if (rows()[row].header())
                headers.push_back(row);
        }
        return headers;
    };
    return m_headerRows.refreshed({structure()}, compute).value;
}

IssueListHeader IssueListModel::headerAt(int row) const
{
    const auto *header = row >= 0 && row < rowCount() ? rows()[row].header() : nullptr;
    return header ? *header : IssueListHeader();
}

int IssueListModel::rowOfKey(const QString &key) const
{
    const auto row = rowOf(key);
    return row && rows()[*row].issue() ? *row : -1;
}

QVariant IssueListModel::data(const QModelIndex &index, int role) const
{
    Q_ASSERT(checkIndex(index, CheckIndexOption::IndexIsValid));
    const auto &row = rows()[index.row()];
    if (role == KeyRole)
        return row.key();
    if (role == AccessibleNameRole && row.issue())
        return accessibleSentence(*row.issue()) +
               dueWords(row.issue()->dueDate, m_calendar.day(m_now), m_calendar.locale) +
               (isOverdue(*row.issue()) ? u", en retard"_s : QString()) + placeWords(index.row());
    return row.issue() ? issueRoleData(*row.issue(), role) : groupData(*row.header(), role);
}

QVariant IssueListModel::issueRoleData(const Issue &issue, int role) const
{
    switch (role) {
    case KindRole:
        return QVariant::fromValue(IssueListEnums::RowKind::Issue);
    case Qt::DisplayRole:
        return oneLine(issue.summary);
    case IssueRole:
        return QVariant::fromValue(withOneLineTexts(issue));
    case HeaderRole:
        return QVariant::fromValue(IssueListHeader());
    case IsFocusedRole:
        return issue.key == m_focusedKey;
    case IsCheckedRole:
        return m_checkedKeys.contains(issue.key);
    case IsOpenRole:
        return issue.key == m_openKey;
    case UpdatedTextRole:
        return compactRelative(issue.updated, m_now, m_calendar);
    case DueTextRole:
        return issue.dueDate ? dueLabel(*issue.dueDate, m_now, m_calendar) : QString();
    case IsOverdueRole:
        return isOverdue(issue);
    case DueTooltipRole:
        return issue.dueDate ? dueTooltip(*issue.dueDate) : QString();
    case BadgeRole:
        return QVariant::fromValue(IssueListBadge(m_badges(issue)));
    }
    return {};
}

QVariant IssueListModel::groupData(const IssueListHeader &header, int role) const
{
    switch (role) {
    case KindRole:
        return QVariant::fromValue(IssueListEnums::RowKind::Header);
    case Qt::DisplayRole:
        return header.title;
    case IssueRole:
        return QVariant::fromValue(Issue());
    case HeaderRole:
        return QVariant::fromValue(header);
    case AccessibleNameRole:
        return header.accessibleName();
    case IsFocusedRole:
    case IsCheckedRole:
    case IsOpenRole:
    case IsOverdueRole:
        return false;
    case BadgeRole:
        return QVariant::fromValue(IssueListBadge());
    case UpdatedTextRole:
    case DueTextRole:
    case DueTooltipRole:
        return QString();
    }
    return {};
}

QString IssueListModel::placeWords(int row) const
{
    const int header = headerRowOf(row);
    const int count = header < 0 ? rowCount() : rows()[header].header()->count;
    return u", %1 sur %2"_s.arg(row - header).arg(count);
}

QString IssueListModel::dueTooltip(const QDate &day) const
{
    return u"Échéance : "_s + dayMonthAndYear(day, m_calendar.locale);
}

bool IssueListModel::isOverdue(const Issue &issue) const
{
    return ::isOverdue(issue, m_calendar.day(m_now));
}

QHash<int, QByteArray> IssueListModel::roleNames() const
{
    return {{KindRole, "kind"},
            {KeyRole, "key"},
            {IssueRole, "issue"},
            {HeaderRole, "header"},
            {IsFocusedRole, "isFocused"},
            {IsCheckedRole, "isChecked"},
            {IsOpenRole, "isOpen"},
            {UpdatedTextRole, "updatedText"},
            {DueTextRole, "dueText"},
            {IsOverdueRole, "isOverdue"},
            {DueTooltipRole, "dueTooltip"},
            {BadgeRole, "badge"},
            {AccessibleNameRole, "accessibleName"}};
}
