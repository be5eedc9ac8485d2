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
    /// An empty one for a group that is not of a status.
    IssueStatus status;

    /// "En cours, 3 tickets".
    QString accessibleName() const;

    bool operator==(const BoardColumnRow &) const = default;
};

/// The columns of the board, each with a model of its cards. A column that stays keeps its model, so that its view lives
/// on while cards come and go.
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

    /// `now` is the time that relative dates are told from until `setNow`.
    BoardModel(UserCalendar calendar, QDateTime now, QObject *parent = nullptr);

    void setColumns(const QList<IssueGroup> &columns);
    /// An empty key focuses nothing.
    void setFocusedKey(const QString &key);
    void setCheckedKeys(const QSet<QString> &keys);
    /// An empty key opens nothing.
    void setOpenKey(const QString &key);
    /// Tells relative dates anew.
    void setNow(const QDateTime &now);
    /// Updates everything that shows dates.
    void setCalendar(const UserCalendar &calendar);

    /// The position of the column that shows the issue; -1 if none does.
    Q_INVOKABLE int columnOfKey(const QString &key) const;
    /// The cards of the column in a position, which must exist.
    IssueListModel *cards(int column) const;

    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    /// The columns and their cards are about to become others; and they have.
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
    /// By column; children of this object, so that QML leaves them alone.
    QHash<QString, IssueListModel *> m_cards;
};
