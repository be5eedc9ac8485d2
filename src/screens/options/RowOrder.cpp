#include "screens/options/RowOrder.h"

#include <QVariant>

#include <algorithm>

namespace {

constexpr auto IndexProperty = "index";

int indexOf(const QQuickItem *row)
{
    return row->property(IndexProperty).toInt();
}

} // namespace

void RowOrder::setContent(QQuickItem *content)
{
    if (m_content == content)
        return;
    if (m_content)
        m_content->disconnect(this);
    m_content = content;
    if (m_content)
        connect(m_content, &QQuickItem::childrenChanged, this, &RowOrder::restore);
    Q_EMIT contentChanged();
    restore();
}

void RowOrder::updatePolish()
{
    if (!m_content)
        return;
    QList<QQuickItem *> rows = m_content->childItems();
    rows.removeIf(
        [](const QQuickItem *child) { return !child->property(IndexProperty).isValid(); });
    if (std::ranges::is_sorted(rows, {}, indexOf))
        return;
    std::ranges::sort(rows, {}, indexOf);
    for (qsizetype i = 1; i < rows.size(); ++i)
        rows[i]->stackAfter(rows[i - 1]);
}
