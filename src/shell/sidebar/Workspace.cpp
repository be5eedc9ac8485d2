#include "shell/sidebar/Workspace.h"

int neighbourRow(const QList<SidebarRow> &rows, int from, int direction)
{
    const auto present = from < 0 ? std::nullopt : rows[from].scope;
    const int edge = direction > 0 ? -1 : int(rows.size());
    for (int row = (from < 0 ? edge : from) + direction; row >= 0 && row < rows.size();
         row += direction) {
        // A project and its list of all issues have the same scope, so a step between their rows would change nothing.
        if (rows[row].scope && rows[row].scope != present)
            return row;
    }
    return from;
}

void Workspace::setStore(AppStore *store)
{
    if (m_store == store)
        return;
    if (m_store) {
        m_store->disconnect(this);
        m_store->sidebar()->disconnect(this);
    }
    m_store = store;
    if (m_store) {
        connect(m_store, &AppStore::sessionChanged, this, &Workspace::changed);
        connect(m_store, &AppStore::meChanged, this, &Workspace::changed);
        connect(m_store->sidebar(), &QAbstractItemModel::dataChanged, this,
                &Workspace::rowsChanged);
        connect(m_store->sidebar(), &QAbstractItemModel::rowsInserted, this,
                &Workspace::rowsChanged);
        connect(m_store->sidebar(), &QAbstractItemModel::rowsRemoved, this,
                &Workspace::rowsChanged);
        connect(m_store->sidebar(), &QAbstractItemModel::rowsMoved, this, &Workspace::rowsChanged);
    }
    Q_EMIT storeChanged();
    Q_EMIT changed();
    Q_EMIT rowsChanged();
}

QString Workspace::initial() const
{
    return m_store ? m_store->siteName().left(1).toUpper() : QString();
}

QString Workspace::userName() const
{
    return m_store && m_store->me() ? m_store->me()->name : QString();
}

QString Workspace::userEmail() const
{
    return m_store && m_store->me() ? m_store->me()->email.value_or(QString()) : QString();
}

int Workspace::selectedRow() const
{
    if (!m_store)
        return -1;
    const auto &rows = m_store->sidebar()->rows();
    const auto selected = std::ranges::find_if(rows, &SidebarRow::isSelected);
    return selected == rows.end() ? -1 : int(selected - rows.begin());
}

int Workspace::projectRow() const
{
    const int selected = selectedRow();
    if (selected < 0)
        return -1;
    const auto &rows = m_store->sidebar()->rows();
    const auto &project = rows[selected].project;
    const auto row = std::ranges::find_if(rows, [&](const SidebarRow &each) {
        return each.kind == SidebarEnums::RowKind::Project && each.project == project;
    });
    return row == rows.end() ? -1 : int(row - rows.begin());
}

void Workspace::selectNeighbour(int direction)
{
    if (!m_store)
        return;
    const int row = neighbourRow(m_store->sidebar()->rows(), selectedRow(), direction);
    if (row < 0 || !m_store->sidebar()->rows()[row].scope)
        return;
    const IssueScope scope = *m_store->sidebar()->rows()[row].scope;
    m_store->setSidebarSelection(scope);
}
