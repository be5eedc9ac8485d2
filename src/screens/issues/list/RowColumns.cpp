#include "screens/issues/list/RowColumns.h"

#include "screens/theme/TypeScale.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace {

int measuredKeyWidth(const KeyShapes &keys)
{
    const QFontMetricsF metrics(TypeScale().font(TypeScale::Small, TypeScale::roleWeight, true));
    return keyColumnWidth(keys, [&](const QString &key) { return metrics.horizontalAdvance(key); });
}

} // namespace

int keyColumnWidth(const KeyShapes &keys, const std::function<qreal(const QString &)> &advance)
{
    if (keys.shapes().empty())
        return Metrics::rowKeyMinimum;
    qreal width = 0;
    for (const auto &shape : keys.shapes())
        width = std::max(width, advance(shape.example));
    return std::clamp(int(std::ceil(width)) + Metrics::rowKeySpare, Metrics::rowKeyMinimum,
                      Metrics::rowKeyMaximum);
}

int updatedColumnWidth(const IssueScope &scope, const IssueList &issues)
{
    const auto hasEvent = [](const SharedIssue &issue) { return !issue->activity.isEmpty(); };
    return scope.asActivity() && std::ranges::any_of(issues, hasEvent) ? Metrics::rowEvent
                                                                       : Metrics::rowDate;
}

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
    const int keyWidth =
        m_store ? measuredKeyWidth(m_store->derivation().keyShapes()) : Metrics::rowKeyMinimum;
    const int updatedWidth =
        m_store ? updatedColumnWidth(m_store->scope(), m_store->derivation().visibleIssues())
                : Metrics::rowDate;
    if (m_keyWidth == keyWidth && m_updatedWidth == updatedWidth)
        return;
    m_keyWidth = keyWidth;
    m_updatedWidth = updatedWidth;
    Q_EMIT changed();
}
