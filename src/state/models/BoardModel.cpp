#include "state/models/BoardModel.h"

#include "model/OneLineText.h"

using namespace Qt::StringLiterals;

namespace {

QList<BoardColumnRow> columnRows(const QList<IssueGroup> &columns)
{
    QList<BoardColumnRow> rows;
    rows.reserve(columns.size());
    for (const auto &column : columns)
        rows.append({column.id, column.title, int(column.issues.size()),
                     column.kind.asStatus().value_or(IssueStatus())});
    return rows;
}

} // namespace

QString BoardColumnRow::accessibleName() const
{
    return title + ", "_L1 + QString::number(count) + (count < 2 ? u" ticket"_s : u" tickets"_s);
}

BoardModel::BoardModel(UserCalendar calendar, QDateTime now, QObject *parent)
    : KeyedListModel(parent), m_calendar(std::move(calendar)), m_now(std::move(now))
{
}

void BoardModel::setColumns(const QList<IssueGroup> &columns)
{
    Q_EMIT aboutToUpdate();
    // The cards are set first, so that no column is shown without its cards.
    for (const auto &column : columns)
        cardsOfColumn(column.id)->setIssues(column.issues);
    update(columnRows(columns));
    forgetCardsWithoutColumn();
    Q_EMIT updated();
}

IssueListModel *BoardModel::cardsOfColumn(const QString &id)
{
    auto &cards = m_cards[id];
    if (!cards) {
        // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): this owns it, as its parent
        cards = new IssueListModel(m_calendar, m_now, this);
        mark(*cards);
    }
    return cards;
}

void BoardModel::mark(IssueListModel &cards) const
{
    cards.setFocusedKey(m_focusedKey);
    cards.setCheckedKeys(m_checkedKeys);
    cards.setOpenKey(m_openKey);
}

void BoardModel::forgetCardsWithoutColumn()
{
    for (const auto &id : m_cards.keys()) {
        // Deleted later, because the column's view may still exist.
        if (!rowOf(id))
            m_cards.take(id)->deleteLater();
    }
}

void BoardModel::setFocusedKey(const QString &key)
{
    m_focusedKey = key;
    for (auto *cards : std::as_const(m_cards))
        cards->setFocusedKey(key);
}

void BoardModel::setCheckedKeys(const QSet<QString> &keys)
{
    m_checkedKeys = keys;
    for (auto *cards : std::as_const(m_cards))
        cards->setCheckedKeys(keys);
}

void BoardModel::setOpenKey(const QString &key)
{
    m_openKey = key;
    for (auto *cards : std::as_const(m_cards))
        cards->setOpenKey(key);
}

void BoardModel::setNow(const QDateTime &now)
{
    m_now = now;
    for (auto *cards : std::as_const(m_cards))
        cards->setNow(now);
}

void BoardModel::setCalendar(const UserCalendar &calendar)
{
    m_calendar = calendar;
    for (auto *cards : std::as_const(m_cards))
        cards->setCalendar(calendar);
}

int BoardModel::columnOfKey(const QString &key) const
{
    for (int column = 0; column < rowCount(); ++column) {
        if (cards(column)->rowOfKey(key) >= 0)
            return column;
    }
    return -1;
}

IssueListModel *BoardModel::cards(int column) const
{
    return m_cards.value(rows()[column].key);
}

QVariant BoardModel::data(const QModelIndex &index, int role) const
{
    Q_ASSERT(checkIndex(index, CheckIndexOption::IndexIsValid));
    const auto &column = rows()[index.row()];
    switch (role) {
    case KeyRole:
        return column.key;
    case Qt::DisplayRole:
    case TitleRole:
        return oneLine(column.title);
    case CountRole:
        return column.count;
    case StatusRole:
        return QVariant::fromValue(column.status);
    case CardsRole:
        return QVariant::fromValue(cards(index.row()));
    case AccessibleNameRole:
        return column.accessibleName();
    }
    return {};
}

QHash<int, QByteArray> BoardModel::roleNames() const
{
    return {{KeyRole, "key"},       {TitleRole, "title"}, {CountRole, "count"},
            {StatusRole, "status"}, {CardsRole, "cards"}, {AccessibleNameRole, "accessibleName"}};
}
