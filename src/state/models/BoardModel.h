#pragma once

#include "derivation/IssueGroup.h"
#include "state/models/IssueListModel.h"
#include "state/models/KeyedListModel.h"

#include <QHash>
#include <QtQml/qqmlregistration.h>

/// A column of the board, without its cards.
struct BoardColumnRow
{
    /// The group's id.
    QString key;
    QString title;
    /// How many issues it has.
    int count = 0;
    /// An empty status for a group that is not a status group.
    IssueStatus status;

    /// "En cours, 3 tickets".
    QString accessibleName() const;

    bool operator==(const BoardColumnRow &) const = default;
};

/// The columns of the board, each with a model of its cards. A column that remains keeps its model, so that its view is
/// kept while cards change.
class BoardModel : public KeyedListModel<BoardColumnRow>
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to the store")

public:
    enum Role {
        /// The group's id.
        KeyRole = Qt::UserRole,
        TitleRole,
        CountRole,
        StatusRole,
        /// `IssueListModel` with the column's issues and no headers.
        CardsRole,
        AccessibleNameRole
    };
    Q_ENUM(Role)

    /// `now` is the reference time of relative dates until `setNow` is called.
    BoardModel(UserCalendar calendar, QDateTime now, QObject *parent = nullptr);

    void setColumns(const QList<IssueGroup> &columns);
    /// An empty key means that no issue has the focus.
    void setFocusedKey(const QString &key);
    void setCheckedKeys(const QSet<QString> &keys);
    /// An empty key means that no issue is open.
    void setOpenKey(const QString &key);
    /// Updates relative dates.
    void setNow(const QDateTime &now);
    /// Updates everything that shows dates.
    void setCalendar(const UserCalendar &calendar);

    /// The position of the column that shows the issue; -1 if none does.
    Q_INVOKABLE int columnOfKey(const QString &key) const;
    /// The cards of the column at a position, which must be valid.
    IssueListModel *cards(int column) const;

    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    /// Emitted before and after the columns and their cards change.
    void aboutToUpdate();
    void updated();

private:
    IssueListModel *cardsOfColumn(const QString &id);
    void mark(IssueListModel &cards) const;
    void forgetCardsWithoutColumn();

    UserCalendar m_calendar;
    QDateTime m_now;
    QString m_focusedKey;
    QSet<QString> m_checkedKeys;
    QString m_openKey;
    /// By column id. They are children of this object, so that QML does not take ownership.
    QHash<QString, IssueListModel *> m_cards;
};
