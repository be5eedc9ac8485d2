#include "screens/issues/list/KeyColumn.h"

#include "screens/theme/TypeScale.h"

#include <QFontMetricsF>

#include <cmath>

namespace {

constexpr int narrowest = 36;
constexpr int widest = 150;
constexpr int margin = 4;

} // namespace

int keyColumnWidth(const KeyShapes &keys, const std::function<qreal(const QString &)> &advance)
{
    if (keys.shapes().empty())
        return narrowest;
    qreal width = 0;
    for (const auto &shape : keys.shapes())
        width = std::max(width, advance(shape.example));
    return std::clamp(int(std::ceil(width)) + margin, narrowest, widest);
}

void KeyColumn::setStore(AppStore *store)
{
    if (m_store == store)
        return;
    if (m_store)
        m_store->issueList()->disconnect(this);
    m_store = store;
    if (m_store)
        connect(m_store->issueList(), &IssueListModel::updated, this, &KeyColumn::measure);
    Q_EMIT storeChanged();
    measure();
}

void KeyColumn::measure()
{
    const QFontMetricsF metrics(TypeScale().font(TypeScale::Small, TypeScale::roleWeight, true));
    const int width =
        m_store ? keyColumnWidth(m_store->derivation().keyShapes(),
                                 [&](const QString &key) { return metrics.horizontalAdvance(key); })
                : narrowest;
    if (m_width == width)
        return;
    m_width = width;
    Q_EMIT widthChanged();
}
