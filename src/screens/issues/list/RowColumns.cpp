#include "screens/issues/list/RowColumns.h"

#include "screens/theme/KeyColumn.h"

#include <algorithm>

namespace {

/// All digits have the same width, so keys of the same project and length are measured once.
QStringList examples(const KeyShapes &keys)
{
    QStringList texts;
    for (const auto &shape : keys.shapes())
        texts.append(shape.example);
    return texts;
}

/// A column of events is wider than one of relative dates.
int updatedColumnWidth(const AppStore &store)
{
    const auto hasEvent = [](const SharedIssue &issue) { return !issue->activity.isEmpty(); };
    return store.scope().asActivity() && std::ranges::any_of(store.visibleIssues(), hasEvent)
               ? Metrics::rowEvent
               : Metrics::rowDate;
}

} // namespace

void RowColumns::setStore(AppStore *store)
{
    if (m_store == store)
        return;
    if (m_store) {
        m_store->issueList()->disconnect(this);
        m_store->disconnect(this);
    }
    m_store = store;
    if (m_store) {
        connect(m_store->issueList(), &IssueListModel::updated, this, &RowColumns::measure);
        connect(m_store, &AppStore::scopeChanged, this, &RowColumns::measure);
    }
    Q_EMIT storeChanged();
    measure();
}

void RowColumns::measure()
{
    const int keyWidth = m_store ? keyColumnWidth(examples(m_store->derivation().keyShapes()))
                                 : Metrics::rowKeyMinimum;
    const int updatedWidth = m_store ? updatedColumnWidth(*m_store) : Metrics::rowDate;
    if (m_keyWidth == keyWidth && m_updatedWidth == updatedWidth)
        return;
    m_keyWidth = keyWidth;
    m_updatedWidth = updatedWidth;
    Q_EMIT changed();
}
