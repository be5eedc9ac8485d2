#include "screens/options/OptionList.h"

#include "commands/NewLabel.h"
#include "screens/options/OptionFilter.h"

#include <QCursor>
#include <QQuickWindow>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

void OptionList::setSource(OptionSource *source)
{
    if (m_source == source)
        return;
    if (m_source)
        m_source->disconnect(this);
    m_source = source;
    if (m_source)
        connect(m_source, &OptionSource::itemsChanged, this, &OptionList::refresh);
    refresh();
    Q_EMIT sourceChanged();
}

void OptionList::setQuery(const QString &query)
{
    if (m_query == query)
        return;
    m_query = query;
    Q_EMIT queryChanged();
    const bool hasMoved = std::exchange(m_highlighted, 0) != 0;
    listRows();
    if (hasMoved)
        Q_EMIT highlightedChanged();
}

void OptionList::setHighlighted(int row)
{
    if (std::exchange(m_highlighted, row) == row)
        return;
    Q_EMIT highlightedChanged();
    Q_EMIT spokenChanged();
}

void OptionList::refresh()
{
    const auto &rows = m_rows.rows();
    const auto key = m_highlighted < rows.size() ? rows[m_highlighted].key : QString();
    listRows();
    const auto row = std::ranges::find(rows, key, &OptionListRow::key);
    const int last = std::max(0, int(rows.size()) - 1);
    setHighlighted(row == rows.end() ? std::min(m_highlighted, last) : int(row - rows.begin()));
}

void OptionList::listRows()
{
    const auto items = m_source ? m_source->items() : QList<OptionItem>();
    const bool canCreate = m_source && m_source->canCreate();
    m_found = filteredOptions(items, m_query);
    m_candidate = canCreate ? newLabel(m_query, items, LabelComparison::AsMade) : std::nullopt;
    QList<OptionListRow> rows;
    std::ranges::transform(m_found, std::back_inserter(rows), itemRow);
    if (m_candidate)
        rows.append(createRow(m_source->createLabel(*m_candidate)));
    m_rows.update(rows);
    Q_EMIT rowsChanged();
    Q_EMIT spokenChanged();
}

QString OptionList::spoken() const
{
    if (m_rows.rows().isEmpty())
        return u"Aucun résultat"_s;
    return u"%1, %2 sur %3"_s.arg(m_rows.rows()[m_highlighted].item.title)
        .arg(m_highlighted + 1)
        .arg(m_rows.rowCount());
}

void OptionList::point(int row, QPointF where)
{
    if (std::exchange(m_pointer, where) != where)
        setHighlighted(row);
}

void OptionList::findPointer(const QQuickItem *view)
{
    if (view->window())
        setPointer(view->window()->mapFromGlobal(QPointF(QCursor::pos())));
}

void OptionList::activate(int row)
{
    if (!m_source || row < 0)
        return;
    if (row == m_found.size() && m_candidate)
        return create();
    if (row >= m_found.size())
        return;
    // A copy, because running the item changes the items.
    const OptionItem item = m_found[row];
    m_source->run(item);
    if (!item.keepsOpen)
        Q_EMIT done();
}

void OptionList::create()
{
    const QString candidate = *m_candidate;
    m_source->create(candidate);
    setQuery({});
}

bool OptionList::repeats(const QKeyEvent &press) const
{
    return press.key() == Qt::Key_Down || press.key() == Qt::Key_Up;
}

bool OptionList::handle(const KeyPress &press)
{
    switch (press.key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        activate(m_highlighted);
        return true;
    case Qt::Key_Down:
        moveHighlight(1);
        return true;
    case Qt::Key_Up:
        moveHighlight(-1);
        return true;
    default:
        return activateDigit(press);
    }
}

void OptionList::moveHighlight(int delta)
{
    const int last = std::max(m_rows.rowCount() - 1, 0);
    setHighlighted(std::max(std::min(m_highlighted + delta, last), 0));
}

bool OptionList::activateDigit(const KeyPress &press)
{
    const auto digit = press.digit();
    if (!digit || !m_query.isEmpty() || press.flags() != Qt::NoModifier)
        return false;
    const auto row = itemWithShortcut(m_found, *digit);
    if (row)
        activate(*row);
    return row.has_value();
}
