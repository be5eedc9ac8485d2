#pragma once

#include "derivation/IssueGroup.h"
#include "derivation/Memo.h"
#include "model/dates/UserCalendar.h"
#include "state/models/IssueListBadge.h"
#include "state/models/IssueListRow.h"
#include "state/models/KeyedListModel.h"

#include <QSet>
#include <QtQml/qqmlregistration.h>

#include <functional>

/// The list layout as one flat list: each group's header, then its issues unless the group is collapsed. Data that
/// depends only on the view (focus, check marks, the open issue, the time) changes without changing the rows.
class IssueListModel : public KeyedListModel<IssueListRow>
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to the store")
    /// Grows with each new list of rows; read by bindings that call the functions on rows below.
    Q_PROPERTY(int revision READ revision NOTIFY updated FINAL)

public:
    enum Role {
        /// `IssueListEnums.RowKind`.
        KindRole = Qt::UserRole,
        /// The issue's key; for a header "h:" and the group's id.
        KeyRole,
        /// The record; an empty one for a header.
        IssueRole,
        /// The header; an empty one for an issue.
        HeaderRole,
        IsFocusedRole,
        IsCheckedRole,
        /// The issue is open in the inspector.
        IsOpenRole,
        /// How long ago the issue was updated.
        UpdatedTextRole,
        /// "Demain" or the like; empty without a due date.
        DueTextRole,
        /// The due date has passed and the issue is not closed.
        IsOverdueRole,
        /// "Échéance : " and the due date in full; empty without one.
        DueTooltipRole,
        /// `IssueListBadge`: the latest event of an issue in a recap; empty for all others.
        BadgeRole,
        /// A whole sentence, with the issue's place in its group.
        AccessibleNameRole
    };
    Q_ENUM(Role)

    /// `now` is the reference time of relative dates until `setNow` is called.
    IssueListModel(UserCalendar calendar, QDateTime now, QObject *parent = nullptr);

    int revision() const { return m_revision; }
    void setGroups(const QList<IssueGroup> &groups, const QSet<QString> &collapsed);
    /// Only issues, without any header: the cards of a column.
    void setIssues(const IssueList &issues);
    /// An empty key means that no issue has the focus. Notifies only the rows that lose and gain the focus.
    void setFocusedKey(const QString &key);
    void setCheckedKeys(const QSet<QString> &keys);
    /// An empty key means that no issue is open.
    void setOpenKey(const QString &key);
    /// Updates relative dates.
    void setNow(const QDateTime &now);
    /// Updates everything that shows dates.
    void setCalendar(const UserCalendar &calendar);

    /// Creates the badge of an issue when a view requests it.
    using BadgeMaker = std::function<std::optional<ActivityBadge>(const Issue &)>;
    void setBadges(BadgeMaker maker) { m_badges = std::move(maker); }
    /// Notifies views that the badges may have changed.
    void refreshBadges();

    /// The row of the header that the row belongs to, which is the row itself for a header; -1 outside the list.
    Q_INVOKABLE int headerRowOf(int row) const;
    /// The row of the next header below the row; -1 if there is none.
    Q_INVOKABLE int headerRowAfter(int row) const;
    /// The number of headers above a row, and so in all rows for the row after the last one.
    Q_INVOKABLE int headersAbove(int row) const;
    /// The header in a row; an empty one if there is none.
    Q_INVOKABLE IssueListHeader headerAt(int row) const;
    /// The row of an issue; -1 if it is not shown.
    Q_INVOKABLE int rowOfKey(const QString &key) const;

    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    /// Emitted before and after the rows change.
    void aboutToUpdate();
    void updated();

private:
    void setRows(IssueListRows list);
    /// The rows that are currently headers, also during an update; ascending.
    const std::vector<int> &headerRows() const;
    QVariant issueRoleData(const Issue &issue, int role) const;
    QVariant groupData(const IssueListHeader &header, int role) const;
    /// The issue's position in its group or column, such as ", 2 sur 5".
    QString placeWords(int row) const;
    QString dueTooltip(const QDate &day) const;
    bool isOverdue(const Issue &issue) const;
    void moveMark(QString &mark, const QString &key, Role role);

    /// What the rows refer to; its own list of rows is empty.
    IssueListRows m_shown;
    UserCalendar m_calendar;
    QDateTime m_now;
    QString m_focusedKey;
    QSet<QString> m_checkedKeys;
    QString m_openKey;
    BadgeMaker m_badges = [](const Issue &) { return std::nullopt; };
    mutable Memo<std::vector<int>> m_headerRows{"header rows"};
    int m_revision = 0;
};
